#include "corvexhook/primitives.h"

#include "corvexhook/arrayclass.h"
#include "corvexhook/inspector.h"

#include <cmath>
#include <limits>

namespace Corvex {

namespace {

bool isWholeInt(double number) {
  return std::trunc(number) == number && number >= std::numeric_limits<int>::min() &&
         number <= std::numeric_limits<int>::max();
}

bool acceptsPrimitive(const QVariant& value, PrimitiveType::Id wanted) {
  const bool isNumber = value.type() == QVariant::Int || value.type() == QVariant::UInt ||
                        value.type() == QVariant::LongLong || value.type() == QVariant::Double;
  switch (wanted) {
    case PrimitiveType::Int:
    case PrimitiveType::UInt:
      return isNumber && isWholeInt(value.toDouble());
    case PrimitiveType::Double:
      return isNumber;
    case PrimitiveType::Bool:
      return value.type() == QVariant::Bool;
    case PrimitiveType::String:
      return value.isValid();
    case PrimitiveType::Any:
      return true;
    case PrimitiveType::Void:
      return false;
  }
  return false;
}

}  // namespace

PrimitiveClass::PrimitiveClass(const char* name, Namespace* ns, PrimitiveType::Id id)
    : Class(name, ns, true), m_id(id) {}

PrimitiveObject::PrimitiveObject(const PrimitiveClass* primitiveClass, const QVariant& value)
    : Object(primitiveClass, nullptr), m_value(value) {}

QString PrimitiveObject::toString() const { return m_value.toString(); }

int PrimitiveObject::toInt() const { return m_value.toInt(); }

long long PrimitiveObject::toLongLong() const { return m_value.toLongLong(); }

double PrimitiveObject::toDouble() const { return m_value.toDouble(); }

bool PrimitiveObject::toBool() const { return m_value.toBool(); }

bool PrimitiveObject::isNull() const { return !m_value.isValid(); }

QVariant primitiveValue(const SharedPtr<Object>& object) {
  const auto* primitive = dynamic_cast<const PrimitiveObject*>(object.get());
  return primitive ? primitive->value() : QVariant();
}

bool isAcceptable(const SharedPtr<Object>& object, const Class* type) {
  if (!object) {
    return false;
  }
  const auto* primitive = dynamic_cast<const PrimitiveClass*>(type);
  if (!primitive) {
    return object->isNull() || object->isA(type);
  }
  if (primitive->id() == PrimitiveType::String && !dynamic_cast<const PrimitiveObject*>(object.get())) {
    return object->objectClass() && object->objectClass()->canCastTo(type, true);
  }
  return acceptsPrimitive(primitiveValue(object), primitive->id());
}

SharedPtr<Object> wrap(int value) { return Inspector::self()->wrapInt(value); }

SharedPtr<Object> wrap(const std::string& value) {
  return Inspector::self()->wrapString(QString::fromStdString(value));
}

bool unwrap(SharedPtr<Object> object, int* out) {
  if (!acceptsPrimitive(primitiveValue(object), PrimitiveType::Int)) {
    return false;
  }
  *out = object->toInt();
  return true;
}

bool unwrap(SharedPtr<Object> object, QStringList* out) {
  if (!object || object->isNull()) {
    return false;
  }
  *out = object->toStringList();
  return true;
}

}  // namespace Corvex
