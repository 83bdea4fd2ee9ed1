#include "webhook/run/pageobject.h"

#include "corvexhook/hostservices.h"
#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"
#include "wrappers/web/object/wraphtmlobject.h"

namespace Corvex::Webhook {

FunctionCallResult<PageObject> pageObjectOf(const SharedPtr<Object>& argument, const char* function) {
  Inspector* const inspector = Inspector::self();
  const bool isNamed = argument->objectClass() == inspector->primitiveType(PrimitiveType::String);
  const SharedPtr<Object> object = isNamed ? inspector->waitForObject(argument->toString()) : argument;
  const QString error = object ? inspector->hostServices().whyNotUse(object) : inspector->takeScriptError();
  WebWrapper::HTML_Object* const native = WebWrapper::retrieveObject(object);
  if (!error.isEmpty() || !native) {
    return FunctionCallResult<PageObject>::failure(
        error.isEmpty() ? QStringLiteral("%1 takes an object of a page, or its name.").arg(QLatin1String(function))
                        : error);
  }
  return FunctionCallResult<PageObject>::success({object, native});
}

}  // namespace Corvex::Webhook
