#include "wrappers/web/glue/scripttypes.h"

#include "corvexhook/arrayclass.h"
#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"
#include "wrappers/web/object/wraphtmlobject.h"

namespace Corvex::WebWrapper {

namespace {

template <typename T, typename Wrap>
SharedPtr<Object> wrapList(const std::vector<T>& values, Wrap wrap) {
  std::vector<SharedPtr<Object>> objects;
  objects.reserve(values.size());
  for (const T& value : values) {
    objects.push_back(wrap(value));
  }
  return ArrayClass::wrapObject(objects);
}

}  // namespace

const Class* scriptInt() { return Inspector::self()->primitiveType(PrimitiveType::Int); }

const Class* scriptBool() { return Inspector::self()->primitiveType(PrimitiveType::Bool); }

const Class* scriptDouble() { return Inspector::self()->primitiveType(PrimitiveType::Double); }

const Class* scriptString() { return Inspector::self()->primitiveType(PrimitiveType::String); }

const Class* scriptVoid() { return Inspector::self()->primitiveType(PrimitiveType::Void); }

const Class* scriptAny() { return Inspector::self()->primitiveType(PrimitiveType::Any); }

const Class* scriptClassByName(const char* name) {
  return Inspector::self()->globalNamespace()->getClass(QString::fromLatin1(name));
}

SharedPtr<Object> wrapVoid() { return Inspector::self()->wrapVoid(); }

const Class* ScriptArgument<QStringList>::type() { return ArrayClass::registeredClass(); }

const Class* ScriptArgument<SharedPtr<Object>>::type() { return ArrayClass::registeredClass(); }

QStringList ScriptArgument<QStringList>::from(const SharedPtr<Object>& value) {
  QStringList texts;
  unwrap(value, &texts);
  return texts;
}

HTML_Object* nativeObject(const SharedPtr<Object>& value) { return retrieveObject(value); }

SharedPtr<Object> ScriptValue<int>::wrap(int value) { return Inspector::self()->wrapInt(value); }

SharedPtr<Object> ScriptValue<bool>::wrap(bool value) { return Inspector::self()->wrapBool(value); }

SharedPtr<Object> ScriptValue<double>::wrap(double value) { return Inspector::self()->wrapDouble(value); }

SharedPtr<Object> ScriptValue<QString>::wrap(const QString& value) { return Inspector::self()->wrapString(value); }

SharedPtr<Object> ScriptValue<const char*>::wrap(const char* value) {
  return Inspector::self()->wrapString(QString::fromUtf8(value));
}

const Class* ScriptArgument<DateTime>::type() { return objectModelDateTimeClass(); }

const Class* ScriptValue<DateTime>::type() { return objectModelDateTimeClass(); }

SharedPtr<Object> ScriptValue<DateTime>::wrap(const DateTime& value) { return wrapDateTime(value); }

const Class* ScriptValue<ScreenRectangle>::type() { return objectModelScreenRectangleClass(); }

SharedPtr<Object> ScriptValue<ScreenRectangle>::wrap(const ScreenRectangle& value) {
  return wrapScreenRectangle(value);
}

const Class* ScriptValue<std::vector<int>>::type() { return ArrayClass::registeredClass(); }

SharedPtr<Object> ScriptValue<std::vector<int>>::wrap(const std::vector<int>& values) {
  return wrapList(values, [](int value) { return Inspector::self()->wrapInt(value); });
}

const Class* ScriptValue<std::vector<std::string>>::type() { return ArrayClass::registeredClass(); }

SharedPtr<Object> ScriptValue<std::vector<std::string>>::wrap(const std::vector<std::string>& values) {
  return wrapList(
      values, [](const std::string& value) { return Inspector::self()->wrapString(QString::fromStdString(value)); });
}

SharedPtr<Object> wrapNative(void* native, const char* className) {
  return wrapAndTransferOwnership(native, QLatin1String(className));
}

SharedPtr<Object> wrapPageObject(HTML_Object* object) { return wrapObject(object); }

}  // namespace Corvex::WebWrapper
