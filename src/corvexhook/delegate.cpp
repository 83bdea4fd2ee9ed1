#include "corvexhook/delegate.h"

#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"

namespace Corvex {

Delegate::Delegate(const QString& className, Type type) : m_className(className), m_type(type) {
  DelegateFactory::self()->add(this);
}

Delegate::~Delegate() { DelegateFactory::self()->remove(this); }

DelegateFactory* DelegateFactory::self() {
  // Never destroyed: delegates with static storage unregister themselves at any time.
  static auto* factory = new DelegateFactory;
  return factory;
}

Delegate* DelegateFactory::delegate(const Class* cls, Delegate::Type type) const {
  for (const Class* c = cls; c; c = c->superClass()) {
    const auto range = m_delegates.equal_range({c->name(), type});
    if (range.first != range.second) {
      return std::prev(range.second)->second;
    }
  }
  return nullptr;
}

void DelegateFactory::add(Delegate* delegate) {
  m_delegates.insert({{delegate->className(), delegate->type()}, delegate});
}

void DelegateFactory::remove(Delegate* delegate) {
  for (auto it = m_delegates.begin(); it != m_delegates.end(); ++it) {
    if (it->second == delegate) {
      m_delegates.erase(it);
      return;
    }
  }
}

ObjectHierarchyDelegate::~ObjectHierarchyDelegate() = default;

SharedPtr<Object> ObjectHierarchyDelegate::objectByQualifiedName(SharedPtr<Object>, const ObjectName&) const {
  return nullptr;
}

SharedPtr<Object> ObjectHierarchyDelegate::parent(SharedPtr<Object>) const { return nullptr; }

const ObjectHierarchyDelegate* hierarchyDelegate(const SharedPtr<Object>& object) {
  return object ? dynamic_cast<const ObjectHierarchyDelegate*>(
                      DelegateFactory::self()->delegate(object->objectClass(), Delegate::ObjectHierarchyDelegateType))
                : nullptr;
}

CastDelegate::~CastDelegate() = default;

ComparisonDelegate::~ComparisonDelegate() = default;

SendEventDelegate::~SendEventDelegate() = default;

GeometryDelegate::~GeometryDelegate() = default;

GlobalBounds GeometryDelegate::nativeGlobalBounds(SharedPtr<Object> object) const { return globalBounds(object); }

Point<CoordinateSystem::Local> GeometryDelegate::globalToRelative(SharedPtr<Object> object,
                                                                  Point<CoordinateSystem::Screen> point) const {
  const GlobalBounds bounds = globalBounds(object);
  return {point.x - bounds.x, point.y - bounds.y};
}

Point<CoordinateSystem::Screen> GeometryDelegate::relativeToGlobal(SharedPtr<Object> object,
                                                                   Point<CoordinateSystem::Local> point) const {
  const GlobalBounds bounds = globalBounds(object);
  return {point.x + bounds.x, point.y + bounds.y};
}

Point<CoordinateSystem::Screen> GeometryDelegate::relativeToNative(SharedPtr<Object> object,
                                                                   Point<CoordinateSystem::Local> point) const {
  const GlobalBounds bounds = nativeGlobalBounds(object);
  return {point.x + bounds.x, point.y + bounds.y};
}

QString castToString(const SharedPtr<Object>& object) {
  const Class* text = Inspector::self()->primitiveType(PrimitiveType::String);
  const Class* cls = object ? object->objectClass() : nullptr;
  const SharedPtr<Object> converted = cls && !object->isNull() ? cls->castTo(object, text, true) : nullptr;
  return converted ? converted->toString() : QString();
}

}  // namespace Corvex
