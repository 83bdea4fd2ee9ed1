#include "wrappers/web/glue/scriptclass.h"

#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"
#include "wrappers/web/object/references.h"
#include "wrappers/web/object/wraphtmlobject.h"

namespace Corvex::WebWrapper {

namespace {

QString describeValue(const SharedPtr<Object>& value) {
  if (!value || value->isNull()) {
    return QStringLiteral("nothing");
  }
  return dynamic_cast<const PrimitiveObject*>(value.get())
             ? QLatin1Char('\'') + value->toString() + QLatin1Char('\'')
             : QStringLiteral("an object of type %1").arg(value->objectClass()->name());
}

bool valueFits(const SharedPtr<Object>& value, const Class* type, const QString& what) {
  if (isAcceptable(value, type)) {
    return true;
  }
  Inspector::self()->reportScriptError(
      QStringLiteral("%1 must be of type %2, but got %3.").arg(what, type->name(), describeValue(value)));
  return false;
}

bool argumentsFit(const ObjectList& arguments, const Method* method, const QString& className) {
  for (int i = 0; i < arguments.size(); ++i) {
    const Argument& argument = method->signature().at(i);
    const QString what = QStringLiteral("%1.%2: argument '%3'").arg(className, method->name(), argument.name());
    if (!valueFits(arguments[i], argument.type(), what)) {
      return false;
    }
  }
  return true;
}

SharedPtr<Object> valueOrReport(const ScriptResult& result) {
  if (result.failed()) {
    Inspector::self()->reportScriptError(result.error);
    return nullptr;
  }
  return result.value;
}

}  // namespace

QString readOnlyPropertyError(const QString& property) {
  return QStringLiteral("Cannot set read-only property %1.").arg(property);
}

ScriptResult Binding::wrongNativeClass(const char* expected) {
  return ScriptResult::failure(
      QStringLiteral("The object is not of type %1 any more. Look it up again.").arg(QLatin1String(expected)));
}

const QString& HTML_ObjectBase_Class::referenceIsUndefinedError() { return deadObjectReferenceError(); }

ScriptClass::ScriptClass(const char* name, const char* superClass, const ClassMembers& members, const NativeKind& kind,
                         Namespace* ns)
    : Class(name, ns, true),
      m_superClass(superClass),
      m_members(members),
      m_kind(kind),
      m_methods(static_cast<std::size_t>(members.methodCount)),
      m_properties(static_cast<std::size_t>(members.propertyCount)) {
  setMemberCounts(members.methodCount, members.propertyCount, 0);
}

void ScriptClass::deleteObjectData(void* data, const ObjectAttribute&) const { m_kind.destroy(data); }

/// The native object that a script can use; otherwise null, and the script has been told.
void* ScriptClass::liveObject(const SharedPtr<Object>& object, const QString& member) const {
  void* native = nullptr;
  const bool isThere = object && object->get(&native);
  const QString why =
      isThere ? m_kind.whyNotUse(native)
              : QStringLiteral("Cannot use %1 of a null object. Check that the object was found.").arg(member);
  if (!why.isEmpty()) {
    Inspector::self()->reportScriptError(why);
  }
  return why.isEmpty() ? native : nullptr;
}

void ScriptClass::initSuperClass() {
  setSuperClass(m_superClass ? Inspector::self()->classByName(QString::fromLatin1(m_superClass)) : nullptr);
}

std::unique_ptr<const Method> ScriptClass::describeMethod(const MethodRow& row) const {
  std::vector<Argument> arguments;
  for (std::size_t i = 0; i < row.argumentCount; ++i) {
    arguments.emplace_back(QString::fromLatin1(row.argumentNames[i]), row.argumentTypes[i]());
  }
  return std::make_unique<const Method>(this, Argument(row.returnType(), ObjectAttribute()),
                                        QString::fromLatin1(row.name), Signature(arguments), row.isStatic);
}

const Method* ScriptClass::createMethod(int id) const {
  const int own = id - superClassOffset(MethodOffset);
  if (own < 0 || own >= m_members.methodCount) {
    return nullptr;
  }
  std::unique_ptr<const Method>& method = m_methods[static_cast<std::size_t>(own)];
  if (!method) {
    method = describeMethod(m_members.methods[own]);
  }
  return method.get();
}

const Property* ScriptClass::createProperty(int id) const {
  const int own = id - superClassOffset(PropertyOffset);
  if (own < 0 || own >= m_members.propertyCount) {
    return nullptr;
  }
  std::unique_ptr<const Property>& property = m_properties[static_cast<std::size_t>(own)];
  if (!property) {
    const PropertyRow& row = m_members.properties[own];
    property =
        std::make_unique<const Property>(this, Argument(row.type(), ObjectAttribute()), QString::fromLatin1(row.name),
                                         row.write ? Property::ReadWrite : Property::ReadOnly, own);
  }
  return property.get();
}

const Enum* ScriptClass::createEnum(int id) const {
  if (id != 0 || !m_members.enumeration) {
    return nullptr;
  }
  if (!m_enum) {
    const EnumRow& row = *m_members.enumeration;
    m_enum = std::make_unique<const Enum>(this, QString::fromLatin1(row.name), row.items, row.itemCount);
  }
  return m_enum.get();
}

SharedPtr<Object> ScriptClass::invoke(int id, SharedPtr<Object> object, const ObjectList& arguments,
                                      const Method* method) const {
  if (!verifyMethodInvocation(object, method) || !verifyMethodArgumentCount(name(), method, arguments)) {
    return nullptr;
  }
  const int own = id - superClassOffset(MethodOffset);
  void* const native = method->isStatic() ? nullptr : liveObject(object, method->name());
  if ((!native && !method->isStatic()) || own < 0 || own >= m_members.methodCount ||
      !argumentsFit(arguments, method, name())) {
    return nullptr;
  }
  return valueOrReport(m_members.methods[own].call(native, arguments));
}

QString ScriptClass::whyNotCall(const QString& method, const ObjectList& arguments) const {
  return m_members.callError ? m_members.callError(method, arguments) : QString();
}

QString ScriptClass::whyNoMember(const QString& member) const {
  return m_members.unknownError ? m_members.unknownError(member) : QString();
}

const PropertyRow* ScriptClass::propertyRow(const Property* property) const {
  const bool known = property->owner() == this && property->index() < m_members.propertyCount;
  return known ? &m_members.properties[property->index()] : nullptr;
}

SharedPtr<Object> ScriptClass::getProperty(SharedPtr<Object> object, const Property* property) const {
  if (property->owner() != this) {
    return property->owner()->getProperty(object, property);
  }
  const PropertyRow* const row = propertyRow(property);
  void* const native = row ? liveObject(object, property->name()) : nullptr;
  return native ? valueOrReport(row->read(native, row->name)) : SharedPtr<Object>();
}

bool ScriptClass::setProperty(SharedPtr<Object> object, const Property* property, SharedPtr<Object> value) const {
  if (property->owner() != this) {
    return property->owner()->setProperty(object, property, value);
  }
  const PropertyRow* const row = propertyRow(property);
  void* const native = row ? liveObject(object, property->name()) : nullptr;
  if (native && !row->write) {
    Inspector::self()->reportScriptError(m_members.readOnlyError(property->name()));
    return false;
  }
  const QString what = QStringLiteral("%1.%2").arg(name(), property->name());
  return native && valueFits(value, property->type().type(), what) && valueOrReport(row->write(native, value));
}

}  // namespace Corvex::WebWrapper
