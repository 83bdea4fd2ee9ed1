#pragma once

#include "corvexhook/class.h"
#include "corvexhook/geometry.h"
#include "corvexhook/objectname.h"

#include <QString>

#include <map>

namespace Corvex {

/// Base of all delegates. A delegate serves one class and all its subclasses that have none of their own.
class CORVEXHOOK_EXPORT Delegate {
public:
  enum Type {
    ObjectHierarchyDelegateType = 0,
    GeometryDelegateType = 3,
    SendEventDelegateType = 4,
    CastDelegateType = 5,
    ComparisonDelegateType = 6,
    DumpObjectTreeDelegateType = 9,
  };

  /// Registers the delegate; the destructor unregisters it.
  Delegate(const QString& className, Type type);
  virtual ~Delegate();

  const QString& className() const { return m_className; }
  Type type() const { return m_type; }

  Delegate(const Delegate&) = delete;
  Delegate& operator=(const Delegate&) = delete;

private:
  QString m_className;
  Type m_type;
};

class CORVEXHOOK_EXPORT DelegateFactory {
public:
  static DelegateFactory* self();
  /// The delegate of the class or of its nearest super class; null without any.
  Delegate* delegate(const Class* cls, Delegate::Type type) const;

private:
  friend class Delegate;
  void add(Delegate* delegate);
  void remove(Delegate* delegate);

  // The last one registered for a class answers.
  std::multimap<std::pair<QString, int>, Delegate*> m_delegates;
};

/// Walks and queries a tree of objects.
class CORVEXHOOK_EXPORT ObjectHierarchyDelegate : public Delegate {
public:
  explicit ObjectHierarchyDelegate(const QString& className) : Delegate(className, ObjectHierarchyDelegateType) {}
  ~ObjectHierarchyDelegate() override;

  virtual int numChildren(SharedPtr<Object> object) const = 0;
  virtual SharedPtr<Object> child(SharedPtr<Object> object, int index) const = 0;
  virtual SharedPtr<Object> childByName(SharedPtr<Object> object, const QString& name) const = 0;
  virtual SharedPtr<Object> objectByQualifiedName(SharedPtr<Object> parent, const ObjectName& name) const;
  virtual QString name(SharedPtr<Object> object) const = 0;
  virtual QString qualifiedName(SharedPtr<Object> object) const = 0;
  virtual ObjectList children(SharedPtr<Object> object) const = 0;
  virtual SharedPtr<Object> parent(SharedPtr<Object> object) const;
  virtual int wrapperType() const = 0;
};

/// The delegate that serves the object; null for no object, and for one whose class has none.
CORVEXHOOK_EXPORT const ObjectHierarchyDelegate* hierarchyDelegate(const SharedPtr<Object>& object);

class CORVEXHOOK_EXPORT CastDelegate : public Delegate {
public:
  explicit CastDelegate(const QString& className) : Delegate(className, CastDelegateType) {}
  ~CastDelegate() override;

  virtual bool canCastTo(const Class* target) const = 0;
  virtual bool canCastFrom(const Class* source) const = 0;
  virtual SharedPtr<Object> castTo(SharedPtr<Object> object, const Class* target) const = 0;
  virtual SharedPtr<Object> castFrom(SharedPtr<Object> object, const Class* target) const = 0;
};

class CORVEXHOOK_EXPORT ComparisonDelegate : public Delegate {
public:
  explicit ComparisonDelegate(const QString& className) : Delegate(className, ComparisonDelegateType) {}
  ~ComparisonDelegate() override;

  /// True when the two are equal.
  virtual bool compare(SharedPtr<Object> a, SharedPtr<Object> b) const = 0;
  virtual bool sameObjects(SharedPtr<Object> a, SharedPtr<Object> b) const = 0;
};

/// Tells where objects are. Native points are those of the system's input, in pixels of the screen.
class CORVEXHOOK_EXPORT GeometryDelegate : public Delegate {
public:
  explicit GeometryDelegate(const QString& className) : Delegate(className, GeometryDelegateType) {}
  ~GeometryDelegate() override;

  virtual GlobalBounds globalBounds(SharedPtr<Object> object) const = 0;
  /// As `globalBounds`, where an object's screen has one sort of pixels only.
  virtual GlobalBounds nativeGlobalBounds(SharedPtr<Object> object) const;
  /// Relative points are measured from the object's corner.
  virtual Point<CoordinateSystem::Local> globalToRelative(SharedPtr<Object> object,
                                                          Point<CoordinateSystem::Screen> point) const;
  virtual Point<CoordinateSystem::Screen> relativeToGlobal(SharedPtr<Object> object,
                                                           Point<CoordinateSystem::Local> point) const;
  virtual Point<CoordinateSystem::Screen> relativeToNative(SharedPtr<Object> object,
                                                           Point<CoordinateSystem::Local> point) const;
  /// The innermost child at a relative point; null without one.
  virtual SharedPtr<Object> childAt(SharedPtr<Object> object, int x, int y) const = 0;
  /// The object that takes the focus in place of this one.
  virtual SharedPtr<Object> focusProxy(SharedPtr<Object> object) const = 0;
};

/// Lets events happen at objects.
class CORVEXHOOK_EXPORT SendEventDelegate : public Delegate {
public:
  explicit SendEventDelegate(const QString& className) : Delegate(className, SendEventDelegateType) {}
  ~SendEventDelegate() override;

  /// False when the event was not sent; why not is reported to the script, unless the object is none of this
  /// delegate's.
  virtual bool sendEvent(const Event* event, SharedPtr<Object> object, const ObjectList& arguments) const = 0;
};

/// The text of an object through the cast delegate of its class; empty without one.
CORVEXHOOK_EXPORT QString castToString(const SharedPtr<Object>& object);

}  // namespace Corvex
