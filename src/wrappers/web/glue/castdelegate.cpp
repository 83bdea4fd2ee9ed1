#include "wrappers/web/glue/castdelegate.h"

#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"
#include "wrappers/web/object/wraphtmlobject.h"

namespace Corvex::WebWrapper {

HTML_Object_CastToStringDelegate::HTML_Object_CastToStringDelegate() : CastDelegate(QStringLiteral("HTML_Object")) {}

bool HTML_Object_CastToStringDelegate::canCastTo(const Class* target) const {
  return target && target == Inspector::self()->primitiveType(PrimitiveType::String);
}

bool HTML_Object_CastToStringDelegate::canCastFrom(const Class*) const { return false; }

SharedPtr<Object> HTML_Object_CastToStringDelegate::castTo(SharedPtr<Object> object, const Class* target) const {
  const HTML_Object* native = retrieveObject(object);
  return native && canCastTo(target) ? Inspector::self()->wrapString(native->reference) : SharedPtr<Object>();
}

SharedPtr<Object> HTML_Object_CastToStringDelegate::castFrom(SharedPtr<Object>, const Class*) const { return nullptr; }

}  // namespace Corvex::WebWrapper
