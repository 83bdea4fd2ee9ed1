#include "wrappers/web/lookup/findobjectwithjsfunction.h"

#include "corvexhook/inspector.h"
#include "shared/environment.h"
#include "tracelib/tracepoint.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/escaping.h"

namespace Corvex::WebWrapper {

namespace {

const unsigned int defaultTimeoutMs = 5000;

}  // namespace

unsigned int objectLookupTimeout() {
  bool isNumber = false;
  const unsigned int timeoutMs = environmentVariable("CORVEX_WEB_OBJECT_LOOKUP_TIMEOUT").toUInt(&isNumber, 10);
  return isNumber ? timeoutMs : defaultTimeoutMs;
}

static SharedPtr<Object> foundObject(const FunctionCallResult<HTML_Object*>& result, const QString& code,
                                     const QString& name) {
  TRACE_POINT("WebObjectDelegate", QLatin1String("Generated html object for name ") + name + QLatin1String(": ") +
                                       (result.value ? result.value->reference : QStringLiteral("null")));
  if (result.failed()) {
    Inspector::self()->reportScriptError(
        QStringLiteral("Failed to lookup object name '%1' with function '%2': %3").arg(name, code, result.error));
    return nullptr;
  }
  if (!result.value) {
    return nullptr;
  }
  Inspector::self()->removeUnmatchedProperties(unescape(name));
  return wrapObject(result.value);
}

SharedPtr<Object> findObjectWithJsFunction(const QString& code, const QString& name, HTMLComponent* component) {
  return foundObject(htmlObjectFromJavaScriptResult(component, code, name, objectLookupTimeout()), code, name);
}

SharedPtr<Object> findFromRootWithJsFunction(const QString& code, const QString& name, HTMLComponent* component) {
  return foundObject(htmlObjectFromAnyDocument(component, code, name, objectLookupTimeout()), code, name);
}

SharedPtr<Object> foundInContainer(const SharedPtr<Object>& object, const ObjectName& name) {
  if (object) {
    Inspector::self()->removeUnmatchedProperties(name.qualifiedName());
  }
  return object;
}

}  // namespace Corvex::WebWrapper
