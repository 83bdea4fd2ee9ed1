#include "wrappers/web/glue/castdelegate.h"

#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"
#include "wrappers/web/object/wraphtmlobject.h"

namespace Corvex::WebWrapper {

namespace {

FunctionCallResult<QString> referenceOf(const SharedPtr<Object>& object) {
  const HTML_Object* const native = retrieveObject(object);
  return FunctionCallResult<QString>::success(native ? native->reference : QString());
}

}  // namespace

bool CastToStringDelegate::canCastTo(const Class* target) const {
  return target && target == Inspector::self()->primitiveType(PrimitiveType::String);
}

bool CastToStringDelegate::canCastFrom(const Class*) const { return false; }

SharedPtr<Object> CastToStringDelegate::castTo(SharedPtr<Object> object, const Class* target) const {
  if (!object || object->isNull() || !canCastTo(target)) {
    return nullptr;
  }
  const FunctionCallResult<QString> text = m_textOf(object);
  if (text.failed()) {
    Inspector::self()->reportScriptError(text.error);
    return nullptr;
  }
  return Inspector::self()->wrapString(text.value);
}

SharedPtr<Object> CastToStringDelegate::castFrom(SharedPtr<Object>, const Class*) const { return nullptr; }

HTML_Object_CastToStringDelegate::HTML_Object_CastToStringDelegate()
    : CastToStringDelegate(QStringLiteral("HTML_Object"), referenceOf) {}

}  // namespace Corvex::WebWrapper
