#pragma once

#include "corvexhook/export.h"
#include "corvexhook/method.h"
#include "corvexhook/object.h"

#include <QHash>
#include <QString>

#include <memory>
#include <string>

class QDataStream;

namespace Corvex {

class Namespace;

/// A further face of a class, found by its name.
class CORVEXHOOK_EXPORT Interface {
public:
  explicit Interface(const std::string& name) : m_name(name) {}
  virtual ~Interface();
  const std::string& name() const { return m_name; }
  /// The object as seen through this interface; null when it has none of that name.
  virtual SharedPtr<Object> convertToInterface(SharedPtr<Object> object, const QString& name) const = 0;

private:
  std::string m_name;
};

/// A class that test scripts see. Methods, properties and events are numbered over the whole chain of super classes,
/// the root's first; `createMethod` and its kin describe one by its number, `invoke` and its kin run it.
class CORVEXHOOK_EXPORT Class {
public:
  enum OffsetType { MethodOffset, PropertyOffset, EventOffset };

  /// Registers the class in `ns`. `isPublic` says whether scripts may name it.
  Class(const char* name, Namespace* ns, bool isPublic);
  Class(const char* name, bool isPublic);
  virtual ~Class();

  virtual void writeObject(QDataStream& stream) const;
  virtual void readObject(QDataStream& stream);
  virtual SharedPtr<Object> convertToInterface(SharedPtr<Object> object, const QString& name) const;
  virtual bool invoke(int id, void* object, void** arguments, const Class* cls) const;
  virtual SharedPtr<Object> invoke(SharedPtr<Object> object, const Method* method, void** arguments) const;
  virtual bool setProperty(int id, void* object, void* value) const;
  virtual bool setProperty(SharedPtr<Object> object, const Property* property, SharedPtr<Object> value) const;
  virtual void* getProperty(int id, void* object, const Class* cls) const;
  virtual SharedPtr<Object> getProperty(SharedPtr<Object> object, const Property* property) const;
  virtual void* construct(int id, void** arguments) const;
  /// A value of this class around a native pointer.
  virtual SharedPtr<Object> wrap(void* data, const ObjectAttribute& attribute) const;
  virtual void deleteObjectData(void* data, const ObjectAttribute& attribute) const;
  virtual bool canConvertTo(const Class* target, bool implicit, bool exact, void** data) const;
  virtual SharedPtr<Object> convertTo(SharedPtr<Object> object, const Class* target, bool implicit) const;
  virtual int compare(SharedPtr<Object> a, SharedPtr<Object> b) const;
  virtual bool sameObjects(SharedPtr<Object> a, SharedPtr<Object> b) const;
  virtual bool canConvertToTolerant(const Class* target, bool implicit, bool exact, void** data) const;
  virtual SharedPtr<Object> convertToTolerant(SharedPtr<Object> object, const Class* target, bool implicit) const;
  virtual QString realType(const QString& type) const;
  /// Looks the super class up by name and calls `setSuperClass`; called lazily, before the first use.
  virtual void initSuperClass();
  virtual const Constructor* createConstructor(int id) const;
  virtual const Method* createMethod(int id) const;
  virtual const Property* createProperty(int id) const;
  virtual const Event* createEvent(int id) const;
  virtual const Enum* createEnum(int id) const;
  virtual bool canCastTo(const Class* target, bool implicit) const;
  virtual SharedPtr<Object> castTo(SharedPtr<Object> object, const Class* target, bool implicit) const;
  virtual bool canConvertToInternal(const Class* target, bool implicit, bool exact) const;
  virtual SharedPtr<Object> convertToInternal(SharedPtr<Object> object, const Class* target, bool implicit) const;
  virtual bool setProperty(int id, SharedPtr<Object> object, SharedPtr<Object> value, const Property* property) const;
  virtual SharedPtr<Object> getProperty(int id, SharedPtr<Object> object, const Property* property) const;
  virtual SharedPtr<Object> invoke(int id, SharedPtr<Object> object, const ObjectList& arguments,
                                   const Method* method) const;
  virtual SharedPtr<Object> construct(int id, const ObjectList& arguments, const Constructor* constructor) const;

  /// What a script is told whose arguments no method of the name takes; empty where the class has no words for it.
  /// Asked before arguments are converted, and so may refuse some that could be.
  virtual QString whyNotCall(const QString& method, const ObjectList& arguments) const;
  /// What a script is told that asks for a member which there is not; empty where the class has no words for it.
  virtual QString whyNoMember(const QString& member) const;

  const QString& name() const { return m_name; }
  bool isPublic() const { return m_public; }

  /// Null for a root class. Resolves a super class that isn't resolved yet.
  const Class* superClass() const;
  void setSuperClass(const Class* superClass) { m_superClass = superClass; }
  /// True for `cls` itself too.
  bool derivesFrom(const Class* cls) const;
  void addInterface(const Interface* interface);

  /// Inherited members count too.
  int numMethods() const;
  int numProperties() const;
  int numEvents() const;
  /// How many members of a kind the super classes hold.
  int superClassOffset(OffsetType type) const;
  const Method* method(int id) const;
  const Property* property(int id) const;
  /// Null when no property of the chain has the name.
  const Property* property(const QString& name) const;
  /// Null when no event of the chain has the name; the first one of those that share it.
  const Event* event(const QString& name) const;

  /// Stands for a super class that isn't resolved yet.
  static const Class* const uninitialized;

protected:
  /// The generated constructor's duty: how many members the class itself adds.
  void setMemberCounts(int methods, int properties, int events);

private:
  struct Private;
  QString m_name;
  bool m_public;
  const Class* m_superClass;
  std::unique_ptr<Private> d;
};

/// Finds classes by name.
class CORVEXHOOK_EXPORT Namespace {
public:
  Namespace();
  ~Namespace();
  /// Null for an unknown name.
  const Class* getClass(const QString& name) const;
  /// Called by the constructor of `Class`; the class stays its creator's, and lives as long as the namespace.
  void registerClass(const Class* cls);
  /// In order of registration.
  const std::vector<const Class*>& classes() const { return m_classes; }

  Namespace(const Namespace&) = delete;
  Namespace& operator=(const Namespace&) = delete;

private:
  std::vector<const Class*> m_classes;
  QHash<QString, const Class*> m_byName;
};

using GlobalFunction = SharedPtr<Object> (*)(void** arguments, const Class* cls);

/// A function of the script's global scope. `function` gets an array of pointers to `SharedPtr<Object>`, one an
/// argument.
class CORVEXHOOK_EXPORT GlobalMethod : public Method {
public:
  GlobalMethod(GlobalFunction function, const Argument& returnType, const QString& name, const Signature& signature,
               bool isStatic);
  SharedPtr<Object> call(const ObjectList& arguments) const;

private:
  GlobalFunction m_function;
};

/// What the script's global scope offers. Borrows what is added: it lives as long as the program.
class CORVEXHOOK_EXPORT GlobalClass : public Class {
public:
  explicit GlobalClass(Namespace* ns);
  void addMethod(const GlobalMethod* method) { m_methods.push_back(method); }
  /// An event's id is the number of events before it.
  void addEvent(const Event* event);
  const Event* createEvent(int id) const override;
  const std::vector<const GlobalMethod*>& methods() const { return m_methods; }
  const std::vector<const Event*>& events() const { return m_events; }

private:
  std::vector<const GlobalMethod*> m_methods;
  std::vector<const Event*> m_events;
};

}  // namespace Corvex
