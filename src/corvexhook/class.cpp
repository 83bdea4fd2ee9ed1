#include "corvexhook/class.h"

#include "corvexhook/delegate.h"
#include "corvexhook/inspector.h"

namespace Corvex {

struct Class::Private {
  int methods = 0;
  int properties = 0;
  int events = 0;
  std::vector<const Interface*> interfaces;
};

namespace {

// Only its address counts.
const char unresolvedSuperClass = 0;

}  // namespace

const Class* const Class::uninitialized = reinterpret_cast<const Class*>(&unresolvedSuperClass);

Interface::~Interface() = default;

Class::Class(const char* name, Namespace* ns, bool isPublic) : Class(name, isPublic) {
  if (ns) {
    ns->registerClass(this);
  }
}

Class::Class(const char* name, bool isPublic)
    : m_name(QString::fromUtf8(name)), m_public(isPublic), m_superClass(uninitialized), d(new Private) {}

Class::~Class() = default;

void Class::writeObject(QDataStream&) const {}

void Class::readObject(QDataStream&) {}

SharedPtr<Object> Class::convertToInterface(SharedPtr<Object> object, const QString& name) const {
  for (const Class* cls = this; cls; cls = cls->superClass()) {
    for (const Interface* interface : cls->d->interfaces) {
      if (const SharedPtr<Object> converted = interface->convertToInterface(object, name)) {
        return converted;
      }
    }
  }
  return nullptr;
}

bool Class::invoke(int, void*, void**, const Class*) const { return false; }

SharedPtr<Object> Class::invoke(SharedPtr<Object> object, const Method* method, void** arguments) const {
  ObjectList list;
  for (int i = 0; i < method->signature().count(); ++i) {
    list.push_back(*static_cast<SharedPtr<Object>*>(arguments[i]));
  }
  for (int id = 0; id < numMethods(); ++id) {
    if (this->method(id) == method) {
      return method->owner()->invoke(id, object, list, method);
    }
  }
  return nullptr;
}

bool Class::setProperty(int, void*, void*) const { return false; }

bool Class::setProperty(SharedPtr<Object>, const Property*, SharedPtr<Object>) const { return false; }

void* Class::getProperty(int, void*, const Class*) const { return nullptr; }

SharedPtr<Object> Class::getProperty(SharedPtr<Object>, const Property*) const { return nullptr; }

void* Class::construct(int, void**) const { return nullptr; }

SharedPtr<Object> Class::wrap(void* data, const ObjectAttribute&) const { return new Object(this, data); }

void Class::deleteObjectData(void*, const ObjectAttribute&) const {}

bool Class::canConvertTo(const Class* target, bool, bool, void**) const { return derivesFrom(target); }

SharedPtr<Object> Class::convertTo(SharedPtr<Object> object, const Class* target, bool) const {
  return derivesFrom(target) ? object : SharedPtr<Object>();
}

int Class::compare(SharedPtr<Object> a, SharedPtr<Object> b) const {
  const auto* delegate = dynamic_cast<const ComparisonDelegate*>(
      DelegateFactory::self()->delegate(this, Delegate::ComparisonDelegateType));
  return (delegate ? delegate->compare(a, b) : a == b) ? 0 : 1;
}

bool Class::sameObjects(SharedPtr<Object> a, SharedPtr<Object> b) const {
  if (a == b) {
    return true;
  }
  const auto* delegate = dynamic_cast<const ComparisonDelegate*>(
      DelegateFactory::self()->delegate(this, Delegate::ComparisonDelegateType));
  return delegate && delegate->sameObjects(a, b);
}

bool Class::canConvertToTolerant(const Class* target, bool implicit, bool exact, void** data) const {
  return canConvertTo(target, implicit, exact, data);
}

SharedPtr<Object> Class::convertToTolerant(SharedPtr<Object> object, const Class* target, bool implicit) const {
  return convertTo(object, target, implicit);
}

QString Class::realType(const QString& type) const { return type; }

QString Class::whyNotCall(const QString&, const ObjectList&) const { return QString(); }

QString Class::whyNoMember(const QString&) const { return QString(); }

void Class::initSuperClass() { setSuperClass(nullptr); }

const Constructor* Class::createConstructor(int) const { return nullptr; }

const Method* Class::createMethod(int) const { return nullptr; }

const Property* Class::createProperty(int) const { return nullptr; }

const Event* Class::createEvent(int) const { return nullptr; }

const Enum* Class::createEnum(int) const { return nullptr; }

bool Class::canCastTo(const Class* target, bool) const {
  const auto* delegate =
      dynamic_cast<const CastDelegate*>(DelegateFactory::self()->delegate(this, Delegate::CastDelegateType));
  return delegate && delegate->canCastTo(target);
}

SharedPtr<Object> Class::castTo(SharedPtr<Object> object, const Class* target, bool) const {
  const auto* delegate =
      dynamic_cast<const CastDelegate*>(DelegateFactory::self()->delegate(this, Delegate::CastDelegateType));
  return delegate && delegate->canCastTo(target) ? delegate->castTo(object, target) : SharedPtr<Object>();
}

bool Class::canConvertToInternal(const Class* target, bool implicit, bool exact) const {
  return canConvertTo(target, implicit, exact, nullptr);
}

SharedPtr<Object> Class::convertToInternal(SharedPtr<Object> object, const Class* target, bool implicit) const {
  return convertTo(object, target, implicit);
}

bool Class::setProperty(int, SharedPtr<Object> object, SharedPtr<Object> value, const Property* property) const {
  return setProperty(object, property, value);
}

SharedPtr<Object> Class::getProperty(int, SharedPtr<Object> object, const Property* property) const {
  return getProperty(object, property);
}

SharedPtr<Object> Class::invoke(int, SharedPtr<Object>, const ObjectList&, const Method*) const { return nullptr; }

SharedPtr<Object> Class::construct(int, const ObjectList&, const Constructor*) const { return nullptr; }

const Class* Class::superClass() const {
  if (m_superClass == uninitialized) {
    const_cast<Class*>(this)->initSuperClass();
  }
  return m_superClass;
}

bool Class::derivesFrom(const Class* cls) const {
  for (const Class* c = this; c; c = c->superClass()) {
    if (c == cls) {
      return true;
    }
  }
  return false;
}

void Class::addInterface(const Interface* interface) { d->interfaces.push_back(interface); }

int Class::numMethods() const { return superClassOffset(MethodOffset) + d->methods; }

int Class::numProperties() const { return superClassOffset(PropertyOffset) + d->properties; }

int Class::numEvents() const { return superClassOffset(EventOffset) + d->events; }

int Class::superClassOffset(OffsetType type) const {
  int offset = 0;
  for (const Class* cls = superClass(); cls; cls = cls->superClass()) {
    const int own[] = {cls->d->methods, cls->d->properties, cls->d->events};
    offset += own[type];
  }
  return offset;
}

const Method* Class::method(int id) const {
  const Class* super = superClass();
  return super && id < superClassOffset(MethodOffset) ? super->method(id) : createMethod(id);
}

const Property* Class::property(int id) const {
  const Class* super = superClass();
  return super && id < superClassOffset(PropertyOffset) ? super->property(id) : createProperty(id);
}

const Property* Class::property(const QString& name) const {
  for (int id = numProperties() - 1; id >= 0; --id) {
    const Property* candidate = property(id);
    if (candidate && candidate->name() == name) {
      return candidate;
    }
  }
  return nullptr;
}

const Event* Class::event(const QString& name) const {
  for (int id = 0; id < d->events; ++id) {
    const Event* candidate = createEvent(superClassOffset(EventOffset) + id);
    if (candidate && candidate->name() == name) {
      return candidate;
    }
  }
  const Class* super = superClass();
  return super ? super->event(name) : nullptr;
}

void Class::setMemberCounts(int methods, int properties, int events) {
  d->methods = methods;
  d->properties = properties;
  d->events = events;
}

Namespace::Namespace() = default;

Namespace::~Namespace() = default;

const Class* Namespace::getClass(const QString& name) const { return m_byName.value(name); }

void Namespace::registerClass(const Class* cls) {
  m_classes.push_back(cls);
  m_byName.insert(cls->name(), cls);
}

GlobalMethod::GlobalMethod(GlobalFunction function, const Argument& returnType, const QString& name,
                           const Signature& signature, bool isStatic)
    : Method(Inspector::self()->globalClass(), returnType, name, signature, isStatic), m_function(function) {}

SharedPtr<Object> GlobalMethod::call(const ObjectList& arguments) const {
  std::vector<SharedPtr<Object>> values(arguments.begin(), arguments.end());
  std::vector<void*> pointers;
  for (SharedPtr<Object>& value : values) {
    pointers.push_back(&value);
  }
  return m_function(pointers.data(), owner());
}

GlobalClass::GlobalClass(Namespace* ns) : Class("Global", ns, true) {}

void GlobalClass::addEvent(const Event* event) {
  m_events.push_back(event);
  setMemberCounts(0, 0, static_cast<int>(m_events.size()));
}

const Event* GlobalClass::createEvent(int id) const {
  return id < 0 || id >= static_cast<int>(m_events.size()) ? nullptr : m_events[static_cast<std::size_t>(id)];
}

}  // namespace Corvex
