#include "corvexhook/method.h"

#include "corvexhook/class.h"
#include "corvexhook/inspector.h"

namespace Corvex {

Argument::Argument(const QString& name, const Class* type, const ObjectAttribute& attribute, const Enum* enumeration)
    : m_name(name), m_type(type), m_attribute(attribute), m_enum(enumeration) {}

Argument::Argument(const Class* type, const ObjectAttribute& attribute) : m_type(type), m_attribute(attribute) {}

Argument::Argument(const QString& name, const Class* type, unsigned int, int attribute)
    : m_name(name), m_type(type), m_attribute(attribute) {}

Signature::Signature(const std::vector<Argument>& arguments) {
  for (const Argument& argument : arguments) {
    if (!argument.isValid() || count() == MaxArguments) {
      return;
    }
    m_arguments.push_back(argument);
  }
}

QString Signature::text() const {
  QStringList parts;
  for (const Argument& argument : m_arguments) {
    parts << argument.name() + QStringLiteral(": ") + argument.type()->name();
  }
  return parts.join(QStringLiteral(", "));
}

Method::Method(const Class* owner, const Argument& returnType, const QString& name, const Signature& signature,
               bool isStatic)
    : m_owner(owner), m_returnType(returnType), m_name(name), m_signature(signature), m_static(isStatic) {}

QString Method::text() const {
  return QStringLiteral("%1(%2): %3").arg(m_name, m_signature.text(), m_returnType.type()->name());
}

Property::Property(const Class* owner, const Argument& type, const QString& name, unsigned int flags, int index)
    : m_owner(owner), m_type(type), m_name(name), m_flags(flags), m_index(index) {}

Enum::Enum(const Class* owner, const QString& name, const Item* items, int count)
    : m_owner(owner), m_name(name), m_items(items, items + count) {}

bool verifyMethodInvocation(const SharedPtr<Object>& object, const Method* method) {
  if (method->isStatic()) {
    return true;
  }
  const QString call = method->owner()->name() + QLatin1Char('.') + method->name();
  if (!object || object->isNull()) {
    Inspector::self()->reportScriptError(
        QStringLiteral("Cannot call %1 on a null object. Check that the object was found.").arg(call));
    return false;
  }
  if (!object->isA(method->owner())) {
    Inspector::self()->reportScriptError(
        QStringLiteral("Cannot call %1 on an object of type %2.").arg(call, object->objectClass()->name()));
    return false;
  }
  return true;
}

bool verifyMethodArgumentCount(const QString& methodName, const Method* method, const ObjectList& arguments) {
  const int expected = method->signature().count();
  if (arguments.size() == expected) {
    return true;
  }
  Inspector::self()->reportScriptError(QStringLiteral("%1.%2 takes %3 argument(s), but got %4.")
                                           .arg(methodName, method->text())
                                           .arg(expected)
                                           .arg(arguments.size()));
  return false;
}

}  // namespace Corvex
