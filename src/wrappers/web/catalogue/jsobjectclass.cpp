#include "wrappers/web/catalogue/jsobjectclass.h"

#include "corvexhook/arrayclass.h"
#include "corvexhook/primitives.h"

namespace Corvex::WebWrapper {

namespace {

ScriptResult call(JsObject& object, const QString& method) { return object.call(method, nullptr); }

constexpr MethodRow methods[] = {
    method<&JsObject::property>("property", "propertyName"),
    method<&call>("call", "methodName"),
    method<&JsObject::call>("call", "methodName", "arguments"),
};

bool isText(const SharedPtr<Object>& value) { return primitiveValue(value).type() == QVariant::String; }

QString textOf(const SharedPtr<Object>& value) { return value ? value->toString() : QStringLiteral("null"); }

bool isList(const SharedPtr<Object>& value) { return value && value->isA(ArrayClass::registeredClass()); }

QString propertyError(const ObjectList& arguments) {
  if (arguments.size() != 1) {
    return QStringLiteral("JsObject::property: Requires exactly 1 argument");
  }
  return isText(arguments[0]) ? QString() : QStringLiteral("JsObject::property: Requires a string argument");
}

QString callError(const QString& method, const ObjectList& arguments) {
  if (method == QLatin1String("property")) {
    return propertyError(arguments);
  }
  if (arguments.size() != 1 && arguments.size() != 2) {
    return QStringLiteral("JsObject::call: Requires 1 or 2 arguments");
  }
  if (!isText(arguments[0])) {
    return QStringLiteral("JsObject::call: Requires a string as first argument, got: %1").arg(textOf(arguments[0]));
  }
  return arguments.size() == 1 || isList(arguments[1])
             ? QString()
             : QStringLiteral("JsObject::call: Requires a list as second argument, got: %1").arg(textOf(arguments[1]));
}

}  // namespace

const ClassMembers JsObjectClass = classMembers(methods).withCallError(callError);

}  // namespace Corvex::WebWrapper
