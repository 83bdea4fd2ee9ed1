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

/// One script method. Made by `method<>()`.
struct MethodRow {
  static constexpr std::size_t MaxArguments = 8;

  const char* name;
  ScriptType returnType;
  std::size_t argumentCount;
  std::array<const char*, MaxArguments> argumentNames;
  std::array<ScriptType, MaxArguments> argumentTypes;
  /// Called with as many arguments as the row has, all of their types.
  ScriptResult (*call)(HTML_Object* object, const ObjectList& arguments);
};

/// One script property. Made by `property<>()`.
struct PropertyRow {
  const char* name;
  ScriptType type;
  ScriptResult (*read)(HTML_Object* object);
  /// Null for a read-only property.
  ScriptResult (*write)(HTML_Object* object, const SharedPtr<Object>& value);
};

/// The members that a script class adds to those of its super class.
struct ClassMembers {
  const PropertyRow* properties = nullptr;
  int propertyCount = 0;
  const MethodRow* methods = nullptr;
  int methodCount = 0;
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

ScriptResult wrongNativeClass(const char* expected);

template <auto M, std::size_t... I>
ScriptResult call(HTML_Object* object, const ObjectList& arguments, std::index_sequence<I...>) {
  using S = Member<decltype(M)>;
  auto* native = dynamic_cast<typename S::Native*>(object);
  if (!native) {
    return wrongNativeClass(S::Native::ScriptName);
  }
  return ScriptReturn<typename S::Return>::take(
      std::invoke(M, *native, S::template Argument<I>::from(arguments[I])...));
}

template <auto M>
ScriptResult callMethod(HTML_Object* object, const ObjectList& arguments) {
  return call<M>(object, arguments, std::make_index_sequence<Member<decltype(M)>::arity>());
}

template <auto Getter>
ScriptResult readProperty(HTML_Object* object) {
  return callMethod<Getter>(object, ObjectList());
}

template <auto Setter>
ScriptResult writeProperty(HTML_Object* object, const SharedPtr<Object>& value) {
  return callMethod<Setter>(object, ObjectList{value});
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

template <int P, int M>
constexpr ClassMembers classMembers(const PropertyRow (&properties)[P], const MethodRow (&methods)[M]) {
  return {properties, P, methods, M};
}

/// Root of the script classes whose native side is a page object.
class HTML_ObjectBase_Class : public Class {
public:
  HTML_ObjectBase_Class(const char* name, Namespace* ns);

  void deleteObjectData(void* data, const ObjectAttribute& attribute) const override;
  static const QString& referenceIsUndefinedError();
};

/// Shows a class of the catalogue to the framework, and leads script calls to the native members.
class ScriptClass : public HTML_ObjectBase_Class {
public:
  /// `superClass` is a name, null for none. The rows of the members outlive the class.
  ScriptClass(const char* name, const char* superClass, const ClassMembers& members, Namespace* ns);

  void initSuperClass() override;
  const Method* createMethod(int id) const override;
  const Property* createProperty(int id) const override;
  SharedPtr<Object> invoke(int id, SharedPtr<Object> object, const ObjectList& arguments,
                           const Method* method) const override;
  SharedPtr<Object> getProperty(SharedPtr<Object> object, const Property* property) const override;
  bool setProperty(SharedPtr<Object> object, const Property* property, SharedPtr<Object> value) const override;

  using Class::getProperty;
  using Class::invoke;
  using Class::setProperty;

private:
  std::unique_ptr<const Method> describeMethod(const MethodRow& row) const;
  const PropertyRow* propertyRow(const Property* property) const;

  const char* m_superClass;
  ClassMembers m_members;
  // Filled as scripts ask.
  mutable std::vector<std::unique_ptr<const Method>> m_methods;
  mutable std::vector<std::unique_ptr<const Property>> m_properties;
};

}  // namespace Corvex::WebWrapper
