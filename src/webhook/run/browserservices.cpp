#include "webhook/run/browserservices.h"

#include "webhook/pages/searchexplanation.h"
#include "webhook/run/browsercontrol.h"
#include "wrappers/web/object/references.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/readiness/readiness.h"

namespace Corvex::Webhook {

QString BrowserServices::whyNotGoOn() const { return m_control.whyLost(); }

QString BrowserServices::whyNotLookUp(const QString& name) const {
  m_control.finishLoad();
  const BrowserWindows* const windows = m_control.windows();
  return m_control.whyNotAskPage(windows ? windowMeant(*windows, name) : nullptr);
}

QString BrowserServices::whyNotUse(const SharedPtr<Object>& object) const {
  const WebWrapper::HTML_Object* native = WebWrapper::retrieveObject(object);
  return native && !native->hasValidReference() ? WebWrapper::deadObjectReferenceError() : QString();
}

QString BrowserServices::whyNotAsk(const SharedPtr<Object>& object) const {
  const WebWrapper::HTML_Object* native = WebWrapper::retrieveObject(object);
  // The window of a dead object may be gone, too.
  return native && native->hasValidReference() ? m_control.whyNotAskPage(static_cast<Connection*>(native->component))
                                               : QString();
}

QString BrowserServices::whyNeverFound(const QString& name) const {
  return whyNotLookUp(name).isEmpty() ? faultOfName(*m_control.windows()->current(), name) : QString();
}

QString BrowserServices::whyNotFound(const QString& name) const {
  if (!whyNotLookUp(name).isEmpty()) {
    return QString();
  }
  const QString why = explainFailedSearch(*m_control.windows(), name);
  const QString where = searchedContexts(*m_control.windows(), name);
  return why.isEmpty() || where.isEmpty() ? why + where : why + QLatin1Char(' ') + where;
}

SharedPtr<Object> BrowserServices::lookUpToUse(const std::function<SharedPtr<Object>()>& lookUp) const {
  const WebWrapper::ReadinessToo readinessToo;
  return lookUp();
}

FunctionCallResult<bool> BrowserServices::isReady(const SharedPtr<Object>& object) const {
  return WebWrapper::isObjectReady(WebWrapper::retrieveObject(object));
}

ObjectList BrowserServices::findAll(const std::vector<SharedPtr<Object>>& roots, const ObjectName& name) const {
  return m_model.findAll(roots, name);
}

}  // namespace Corvex::Webhook
