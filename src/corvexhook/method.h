#pragma once

#include "corvexhook/export.h"
#include "corvexhook/object.h"

#include <QString>

#include <array>
#include <vector>

namespace Corvex {

class Class;
class Enum;

/// How a native pointer stands behind a value. 2 stands for a pointer to a native object; 0 for a plain argument.
class ObjectAttribute {
public:
  static constexpr int Plain = 0;
  static constexpr int NativePointer = 2;

  ObjectAttribute() = default;
  explicit ObjectAttribute(int value) : m_value(value) {}
  int value() const { return m_value; }

private:
  int m_value = Plain;
};

/// One argument of a script method, or its return type.
class CORVEXHOOK_EXPORT Argument {
public:
  /// Ends the list of a `Signature`.
  Argument() = default;
  Argument(const QString& name, const Class* type, const ObjectAttribute& attribute = ObjectAttribute(),
           const Enum* enumeration = nullptr);
  Argument(const Class* type, const ObjectAttribute& attribute);
  Argument(const QString& name, const Class* type, unsigned int flags, int attribute);

  bool isValid() const { return m_type != nullptr; }
  const QString& name() const { return m_name; }
  const Class* type() const { return m_type; }
  const ObjectAttribute& attribute() const { return m_attribute; }
  const Enum* enumeration() const { return m_enum; }

private:
  QString m_name;
  const Class* m_type = nullptr;
  ObjectAttribute m_attribute;
  const Enum* m_enum = nullptr;
};

/// The arguments of a method, at most sixteen.
class CORVEXHOOK_EXPORT Signature {
public:
  static constexpr int MaxArguments = 16;

  Signature() = default;
  template <typename... Arguments>
  explicit Signature(const Argument& first, const Arguments&... rest)
      : Signature(std::vector<Argument>{first, rest...}) {
    static_assert(sizeof...(rest) < MaxArguments, "a signature has at most sixteen arguments");
  }
  /// The list ends at the first default-constructed argument.
  explicit Signature(const std::vector<Argument>& arguments);

  int count() const { return static_cast<int>(m_arguments.size()); }
  const Argument& at(int index) const { return m_arguments[static_cast<std::size_t>(index)]; }
  /// "name: type" of each argument, joined by ", ".
  QString text() const;

private:
  std::vector<Argument> m_arguments;
};

class CORVEXHOOK_EXPORT Method {
public:
  Method(const Class* owner, const Argument& returnType, const QString& name, const Signature& signature,
         bool isStatic);

  const Class* owner() const { return m_owner; }
  const Argument& returnType() const { return m_returnType; }
  const QString& name() const { return m_name; }
  const Signature& signature() const { return m_signature; }
  bool isStatic() const { return m_static; }

  /// Marks the method: a call still works, and writes `text` to the log once.
  void deprecate(const QString& text) { m_deprecation = text; }
  const QString& deprecation() const { return m_deprecation; }
  /// "name(arg: type, ...): type"
  QString text() const;

private:
  const Class* m_owner;
  Argument m_returnType;
  QString m_name;
  Signature m_signature;
  QString m_deprecation;
  bool m_static;
};

class CORVEXHOOK_EXPORT Property {
public:
  enum Flag : unsigned int { ReadOnly = 1, ReadWrite = 3 };

  /// `index` is the property's number in its class, super classes not counted.
  Property(const Class* owner, const Argument& type, const QString& name, unsigned int flags, int index);

  const Class* owner() const { return m_owner; }
  const Argument& type() const { return m_type; }
  const QString& name() const { return m_name; }
  bool isWritable() const { return (m_flags & 2U) != 0; }
  int index() const { return m_index; }

private:
  const Class* m_owner;
  Argument m_type;
  QString m_name;
  unsigned int m_flags;
  int m_index;
};

class CORVEXHOOK_EXPORT Constructor {
public:
  Constructor(const Class* owner, const Signature& signature) : m_owner(owner), m_signature(signature) {}
  const Class* owner() const { return m_owner; }
  const Signature& signature() const { return m_signature; }

private:
  const Class* m_owner;
  Signature m_signature;
};

class CORVEXHOOK_EXPORT Enum {
public:
  struct Item {
    const char* name;
    int value;
  };

  Enum(const Class* owner, const QString& name, const Item* items, int count);

  const Class* owner() const { return m_owner; }
  const QString& name() const { return m_name; }
  const std::vector<Item>& items() const { return m_items; }

private:
  const Class* m_owner;
  QString m_name;
  std::vector<Item> m_items;
};

/// A named event type that can be sent to objects of a class.
class CORVEXHOOK_EXPORT Event {
public:
  enum Flag : unsigned int { BuiltIn = 1 };

  /// `id` is the event's number among those of its owner.
  Event(const Class* owner, const QString& name, const Signature& signature, int id, unsigned int flags)
      : m_owner(owner), m_name(name), m_signature(signature), m_id(id), m_flags(flags) {}

  const Class* owner() const { return m_owner; }
  const QString& name() const { return m_name; }
  const Signature& signature() const { return m_signature; }
  int id() const { return m_id; }
  bool isBuiltIn() const { return (m_flags & BuiltIn) != 0; }

private:
  const Class* m_owner;
  QString m_name;
  Signature m_signature;
  int m_id;
  unsigned int m_flags;
};

/// One event that happened, or one script call that was made: what it was, the name of the object and the arguments.
class CORVEXHOOK_EXPORT EventData {
public:
  enum Kind { Happened = 0, FunctionCall = 1 };

  EventData(const Event* event, const QString& objectName, const ObjectList& arguments)
      : m_kind(Happened), m_event(event), m_objectName(objectName), m_arguments(arguments) {}
  EventData(const QString& functionName, const QString& objectName, const ObjectList& arguments)
      : m_kind(FunctionCall), m_functionName(functionName), m_objectName(objectName), m_arguments(arguments) {}

  Kind kind() const { return m_kind; }
  /// Null for a script call.
  const Event* event() const { return m_event; }
  /// Empty for an event.
  const QString& functionName() const { return m_functionName; }
  const QString& objectName() const { return m_objectName; }
  const ObjectList& arguments() const { return m_arguments; }

private:
  Kind m_kind;
  const Event* m_event = nullptr;
  QString m_functionName;
  QString m_objectName;
  ObjectList m_arguments;
};

/// Whether `method` may run on `object`: a non-null object of the method's class. Reports to the script when not.
CORVEXHOOK_EXPORT bool verifyMethodInvocation(const SharedPtr<Object>& object, const Method* method);

/// Whether the number of arguments fits. Reports to the script when it does not; `methodName` opens the sentence.
CORVEXHOOK_EXPORT bool verifyMethodArgumentCount(const QString& methodName, const Method* method,
                                                 const ObjectList& arguments);

}  // namespace Corvex
