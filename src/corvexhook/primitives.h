#pragma once

#include "corvexhook/class.h"

#include <QVariant>

namespace Corvex {

/// Numbers by which `Inspector::primitiveType` tells the classes of plain values.
namespace PrimitiveType {
enum Id { Int = 1, UInt = 2, Bool = 3, String = 4, Double = 5, Void = 7, Any = 8 };
}

/// The class of a plain value: "int", "unsigned int", "bool", "string", "double", "void"; and "any", which stands for a
/// value of any class where one is described.
class CORVEXHOOK_EXPORT PrimitiveClass : public Class {
public:
  PrimitiveClass(const char* name, Namespace* ns, PrimitiveType::Id id);
  PrimitiveType::Id id() const { return m_id; }

private:
  PrimitiveType::Id m_id;
};

/// A plain value. A void value has no data.
class CORVEXHOOK_EXPORT PrimitiveObject : public Object {
public:
  PrimitiveObject(const PrimitiveClass* primitiveClass, const QVariant& value);

  QString toString() const override;
  int toInt() const override;
  long long toLongLong() const override;
  double toDouble() const override;
  bool toBool() const override;
  bool isNull() const override;

  const QVariant& value() const { return m_value; }

private:
  QVariant m_value;
};

/// The plain value behind `object`, or an invalid variant when it is something else.
CORVEXHOOK_EXPORT QVariant primitiveValue(const SharedPtr<Object>& object);

/// Whether `object` may stand where a script method wants a value of `type`, without losing anything: a number for
/// text, a whole number for an int, an object of a subclass or a null for an object.
CORVEXHOOK_EXPORT bool isAcceptable(const SharedPtr<Object>& object, const Class* type);

CORVEXHOOK_EXPORT SharedPtr<Object> wrap(int value);
CORVEXHOOK_EXPORT SharedPtr<Object> wrap(const std::string& value);
/// True when the value is a whole number that fits.
CORVEXHOOK_EXPORT bool unwrap(SharedPtr<Object> object, int* out);
/// A list gives the text of each entry, any other value a list of itself.
CORVEXHOOK_EXPORT bool unwrap(SharedPtr<Object> object, QStringList* out);

}  // namespace Corvex
