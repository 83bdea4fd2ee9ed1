#pragma once

#include "corvexhook/class.h"
#include "wrappers/web/glue/scripttypes.h"

#include <array>
#include <functional>
#include <memory>
#include <tuple>
#include <utility>
#include <vector>

namespace Corvex::WebWrapper {

/// One script method. Made by `method<>()` and `staticMethod<>()`.
struct MethodRow {
  static constexpr std::size_t MaxArguments = 8;

  const char* name;
  ScriptType returnType;
  std::size_t argumentCount;
  std::array<const char*, MaxArguments> argumentNames;
  std::array<ScriptType, MaxArguments> argumentTypes;
  /// Called with as many arguments as the row has, all of their types. `native` is the object of the class's kind, null
  /// for a static method.
  ScriptResult (*call)(void* native, const ObjectList& arguments);
  bool isStatic = false;
};

/// One script property. Made by `property<>()`.
struct PropertyRow {
  const char* name;
  ScriptType type;
  /// The getter is told the name, so that one can serve many rows.
  ScriptResult (*read)(void* native, const char* name);
  /// Null for a read-only property.
  ScriptResult (*write)(void* native, const SharedPtr<Object>& value);
};

/// An enumeration of a script class; its items are members of an object of that name.
struct EnumRow {
  const char* name;
  const Enum::Item* items;
  int itemCount;
};

QString readOnlyPropertyError(const QString& property);

/// The members that a script class adds to those of its super class.
struct ClassMembers {
  using ErrorOf = QString (*)(const QString& property);

  const PropertyRow* properties = nullptr;
  int propertyCount = 0;
  const MethodRow* methods = nullptr;
  int methodCount = 0;
  const EnumRow* enumeration = nullptr;
  /// What a script is told that assigns to a read-only property.
  ErrorOf readOnlyError = readOnlyPropertyError;

  /// What a script is told whose call fits no method of the name, empty for one that fits; null where the framework's
  /// words are all.
  using CallErrorOf = QString (*)(const QString& method, const ObjectList& arguments);
  CallErrorOf callError = nullptr;
  /// What a script is told that asks for a member which there is not; null where the framework's words are all.
  ErrorOf unknownError = nullptr;

  constexpr ClassMembers withReadOnlyError(ErrorOf error) const {
    ClassMembers members = *this;
    members.readOnlyError = error;
    return members;
  }
  constexpr ClassMembers withCallError(CallErrorOf error) const {
    ClassMembers members = *this;
    members.callError = error;
    return members;
  }
  constexpr ClassMembers withUnknownError(ErrorOf error) const {
    ClassMembers members = *this;
    members.unknownError = error;
    return members;
  }
};

/// What the native objects of one root have in common.
struct NativeKind {
  /// Why a script cannot use the object any more; empty when it can.
  QString (*whyNotUse)(const void* native);
  void (*destroy)(void* native);
};

namespace Binding {

template <typename T>
using Plain = std::remove_cv_t<std::remove_reference_t<T>>;

template <typename R, typename C, typename... A>
struct Signature {
  using Return = Plain<R>;
  using Native = C;
  static constexpr std::size_t arity = sizeof...(A);
  template <std::size_t I>
  using Argument = ScriptArgument<Plain<std::tuple_element_t<I, std::tuple<A...>>>>;
};

/// Members, and functions that take the native object first.
template <typename T>
struct Member {
  static_assert(unsupported<T>, "a row needs a member function, or a function that takes the native object first");
};
template <typename R, typename C, typename... A>
struct Member<R (C::*)(A...)> : Signature<R, C, A...> {};
template <typename R, typename C, typename... A>
struct Member<R (C::*)(A...) const> : Signature<R, C, A...> {};
template <typename R, typename C, typename... A>
struct Member<R (*)(C&, A...)> : Signature<R, C, A...> {};

/// Functions that take no native object.
template <typename T>
struct Function {
  static_assert(unsupported<T>, "a static row needs a function");
};
template <typename R, typename... A>
struct Function<R (*)(A...)> : Signature<R, void, A...> {};

ScriptResult wrongNativeClass(const char* expected);

/// The native object that all script classes of one root share: page objects are known by their common base.
template <typename T>
using Root = std::conditional_t<std::is_base_of_v<HTML_Object, T>, HTML_Object, T>;

/// Null for a page object of another class.
template <typename T>
T* nativeAs(void* native) {
  auto* const root = static_cast<Root<T>*>(native);
  if constexpr (std::is_same_v<Root<T>, HTML_Object>) {
    return dynamic_cast<T*>(root);
  } else {
    return root;
  }
}

template <auto M, std::size_t... I>
ScriptResult call(void* object, const ObjectList& arguments, std::index_sequence<I...>) {
  using S = Member<decltype(M)>;
  auto* const native = nativeAs<std::remove_const_t<typename S::Native>>(object);
  if (!native) {
    return wrongNativeClass(S::Native::ScriptName);
  }
  return ScriptReturn<typename S::Return>::take(
      std::invoke(M, *native, S::template Argument<I>::from(arguments[I])...));
}

template <auto M>
ScriptResult callMethod(void* object, const ObjectList& arguments) {
  return call<M>(object, arguments, std::make_index_sequence<Member<decltype(M)>::arity>());
}

template <auto F, std::size_t... I>
ScriptResult callStatic(const ObjectList& arguments, std::index_sequence<I...>) {
  using S = Function<decltype(F)>;
  return ScriptReturn<typename S::Return>::take(F(S::template Argument<I>::from(arguments[I])...));
}

template <auto F>
ScriptResult callStaticMethod(void*, const ObjectList& arguments) {
  return callStatic<F>(arguments, std::make_index_sequence<Function<decltype(F)>::arity>());
}

template <auto Getter>
ScriptResult readProperty(void* object, const char*) {
  return callMethod<Getter>(object, ObjectList());
}

template <auto Setter>
ScriptResult writeProperty(void* object, const SharedPtr<Object>& value) {
  return callMethod<Setter>(object, ObjectList{value});
}

/// A native class whose objects can die before their wrappers says so by these two members.
template <typename T, typename = void>
struct Life {
  static QString whyNotUse(const void*) { return QString(); }
};
template <typename T>
struct Life<T, std::void_t<decltype(&T::hasValidReference)>> {
  static QString whyNotUse(const void* native) {
    return static_cast<const T*>(native)->hasValidReference() ? QString() : T::deadError();
  }
};

template <typename T>
void destroy(void* native) {
  delete static_cast<T*>(native);
}

template <typename S, std::size_t... I>
constexpr std::array<ScriptType, MethodRow::MaxArguments> argumentTypes(std::index_sequence<I...>) {
  return {S::template Argument<I>::type...};
}

template <typename... A>
struct Overload {
  template <typename R, typename C>
  constexpr auto operator()(R (C::*member)(A...)) const {
    return member;
  }
  template <typename R, typename C>
  constexpr auto operator()(R (C::*member)(A...) const) const {
    return member;
  }
};

}  // namespace Binding

/// Picks the overload with these argument types: overload<const char*, int>(&HTML_Object::setProperty).
template <typename... A>
constexpr Binding::Overload<A...> overload{};

/// method<&HTML_Select::optionAt>("optionAt", "index"): the name in scripts, and a name for each argument. All types
/// follow from the member.
template <auto M, typename... Names>
constexpr MethodRow method(const char* name, Names... argumentNames) {
  using S = Binding::Member<decltype(M)>;
  static_assert(sizeof...(Names) == S::arity, "a method row names each argument of its member, and no more");
  static_assert(S::arity <= MethodRow::MaxArguments, "a script method has too many arguments");
  return {name,
          ScriptReturn<typename S::Return>::type,
          S::arity,
          {argumentNames...},
          Binding::argumentTypes<S>(std::make_index_sequence<S::arity>()),
          Binding::callMethod<M>};
}

/// staticMethod<&fromRgb>("fromRgb", "red", "green", "blue"): a method that scripts call on the class.
template <auto F, typename... Names>
constexpr MethodRow staticMethod(const char* name, Names... argumentNames) {
  using S = Binding::Function<decltype(F)>;
  static_assert(sizeof...(Names) == S::arity, "a method row names each argument of its function, and no more");
  return {name,
          ScriptReturn<typename S::Return>::type,
          S::arity,
          {argumentNames...},
          Binding::argumentTypes<S>(std::make_index_sequence<S::arity>()),
          Binding::callStaticMethod<F>,
          true};
}

/// property<&HTML_Object::width>("width"): a read-only property.
template <auto Getter>
constexpr PropertyRow property(const char* name) {
  using S = Binding::Member<decltype(Getter)>;
  static_assert(S::arity == 0, "the getter of a property takes no argument");
  return {name, ScriptReturn<typename S::Return>::type, Binding::readProperty<Getter>, nullptr};
}

/// property<&HTML_Option::text, &HTML_Option::setText>("text"): a property that scripts can assign to.
template <auto Getter, auto Setter>
constexpr PropertyRow property(const char* name) {
  static_assert(Binding::Member<decltype(Setter)>::arity == 1, "the setter of a property takes the value alone");
  PropertyRow row = property<Getter>(name);
  row.write = Binding::writeProperty<Setter>;
  return row;
}

template <int M>
constexpr ClassMembers classMembers(const MethodRow (&methods)[M]) {
  return {nullptr, 0, methods, M};
}

template <int P>
constexpr ClassMembers classMembers(const PropertyRow (&properties)[P]) {
  return {properties, P};
}

template <int P, int M>
constexpr ClassMembers classMembers(const PropertyRow (&properties)[P], const MethodRow (&methods)[M]) {
  return {properties, P, methods, M};
}

template <typename T>
constexpr NativeKind nativeKind = {Binding::Life<Binding::Root<T>>::whyNotUse, Binding::destroy<Binding::Root<T>>};

/// Shows a class of rows to the framework, and leads script calls to the native members.
class ScriptClass : public Class {
public:
  /// `superClass` is a name, null for none. Members and kind outlive the class.
  ScriptClass(const char* name, const char* superClass, const ClassMembers& members, const NativeKind& kind,
              Namespace* ns);

  void deleteObjectData(void* data, const ObjectAttribute& attribute) const override;
  void initSuperClass() override;
  const Method* createMethod(int id) const override;
  const Property* createProperty(int id) const override;
  const Enum* createEnum(int id) const override;
  SharedPtr<Object> invoke(int id, SharedPtr<Object> object, const ObjectList& arguments,
                           const Method* method) const override;
  SharedPtr<Object> getProperty(SharedPtr<Object> object, const Property* property) const override;
  bool setProperty(SharedPtr<Object> object, const Property* property, SharedPtr<Object> value) const override;

  QString whyNotCall(const QString& method, const ObjectList& arguments) const override;
  QString whyNoMember(const QString& member) const override;

  using Class::getProperty;
  using Class::invoke;
  using Class::setProperty;

private:
  void* liveObject(const SharedPtr<Object>& object, const QString& member) const;
  std::unique_ptr<const Method> describeMethod(const MethodRow& row) const;
  const PropertyRow* propertyRow(const Property* property) const;

  const char* m_superClass;
  ClassMembers m_members;
  const NativeKind& m_kind;
  // Filled as scripts ask.
  mutable std::vector<std::unique_ptr<const Method>> m_methods;
  mutable std::vector<std::unique_ptr<const Property>> m_properties;
  mutable std::unique_ptr<const Enum> m_enum;
};

/// A script class of page objects.
class HTML_ObjectBase_Class : public ScriptClass {
public:
  using ScriptClass::ScriptClass;

  static const QString& referenceIsUndefinedError();
};

}  // namespace Corvex::WebWrapper
