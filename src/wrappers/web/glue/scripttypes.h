#pragma once

#include "corvexhook/datetime.h"
#include "corvexhook/geometry.h"
#include "corvexhook/object.h"
#include "shared/functioncallresult.h"
#include "wrappers/web/object/webobject.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <string>
#include <type_traits>
#include <vector>

namespace Corvex::WebWrapper {

/// The script class of a native type, found when it is first needed.
using ScriptType = const Class* (*)();
using ScriptResult = FunctionCallResult<SharedPtr<Object>>;

const Class* scriptInt();
const Class* scriptBool();
const Class* scriptDouble();
const Class* scriptString();
const Class* scriptVoid();
const Class* scriptAny();
const Class* scriptClassByName(const char* name);

SharedPtr<Object> wrapVoid();

template <typename T>
constexpr bool unsupported = false;

/// How an argument of type `T` comes from a script value that fits its script class.
template <typename T>
struct ScriptArgument {
  static_assert(unsupported<T>,
                "a script method cannot take an argument of this type: specialise ScriptArgument for it");
};

/// How a value of type `T` goes to a script.
template <typename T>
struct ScriptValue {
  static_assert(unsupported<T>, "a script method cannot give a value of this type: specialise ScriptValue for it");
};

template <>
struct ScriptArgument<int> {
  static constexpr ScriptType type = scriptInt;
  static int from(const SharedPtr<Object>& value) { return value->toInt(); }
};

template <>
struct ScriptArgument<bool> {
  static constexpr ScriptType type = scriptBool;
  static bool from(const SharedPtr<Object>& value) { return value->toBool(); }
};

template <>
struct ScriptArgument<double> {
  static constexpr ScriptType type = scriptDouble;
  static double from(const SharedPtr<Object>& value) { return value->toDouble(); }
};

template <>
struct ScriptArgument<QString> {
  static constexpr ScriptType type = scriptString;
  static QString from(const SharedPtr<Object>& value) { return value->toString(); }
};

/// UTF-8 that lives as long as the call.
template <>
struct ScriptArgument<const char*> {
  struct Text {
    QByteArray utf8;
    operator const char*() const { return utf8.constData(); }
  };
  static constexpr ScriptType type = scriptString;
  static Text from(const SharedPtr<Object>& value) { return {value->toString().toUtf8()}; }
};

/// No date stands for the script's null, and for a date object without a date.
template <>
struct ScriptArgument<DateTime> {
  static const Class* type();
  static DateTime from(const SharedPtr<Object>& value) { return unwrapDateTime(value); }
};

template <>
struct ScriptArgument<QStringList> {
  static const Class* type();
  static QStringList from(const SharedPtr<Object>& value);
};

/// A list as it is, for members that look at the entries themselves.
template <>
struct ScriptArgument<SharedPtr<Object>> {
  static const Class* type();
  static SharedPtr<Object> from(const SharedPtr<Object>& value) { return value; }
};

HTML_Object* nativeObject(const SharedPtr<Object>& value);

/// A page object, which stays the script's; null for the script's null.
template <typename T>
struct ScriptArgument<T*> {
  static_assert(std::is_base_of_v<HTML_Object, T>, "only pointers to page objects can be arguments");
  static const Class* type() { return scriptClassByName(T::ScriptName); }
  static T* from(const SharedPtr<Object>& value) { return dynamic_cast<T*>(nativeObject(value)); }
};

template <>
struct ScriptValue<int> {
  static constexpr ScriptType type = scriptInt;
  static SharedPtr<Object> wrap(int value);
};

template <>
struct ScriptValue<bool> {
  static constexpr ScriptType type = scriptBool;
  static SharedPtr<Object> wrap(bool value);
};

template <>
struct ScriptValue<double> {
  static constexpr ScriptType type = scriptDouble;
  static SharedPtr<Object> wrap(double value);
};

template <>
struct ScriptValue<QString> {
  static constexpr ScriptType type = scriptString;
  static SharedPtr<Object> wrap(const QString& value);
};

template <>
struct ScriptValue<const char*> {
  static constexpr ScriptType type = scriptString;
  static SharedPtr<Object> wrap(const char* value);
};

template <>
struct ScriptValue<DateTime> {
  static const Class* type();
  static SharedPtr<Object> wrap(const DateTime& value);
};

template <>
struct ScriptValue<ScreenRectangle> {
  static const Class* type();
  static SharedPtr<Object> wrap(const ScreenRectangle& value);
};

template <>
struct ScriptValue<std::vector<int>> {
  static const Class* type();
  static SharedPtr<Object> wrap(const std::vector<int>& values);
};

template <>
struct ScriptValue<std::vector<std::string>> {
  static const Class* type();
  static SharedPtr<Object> wrap(const std::vector<std::string>& values);
};

/// A value of any kind.
template <>
struct ScriptValue<SharedPtr<Object>> {
  static constexpr ScriptType type = scriptAny;
  static SharedPtr<Object> wrap(const SharedPtr<Object>& value) { return value; }
};

SharedPtr<Object> wrapPageObject(HTML_Object* object);

/// The script owns the page object from then on.
template <typename T>
struct ScriptValue<T*> {
  static_assert(std::is_base_of_v<HTML_Object, T>, "only pointers to page objects can be values");
  static const Class* type() { return scriptClassByName(T::ScriptName); }
  static SharedPtr<Object> wrap(T* value) { return wrapPageObject(value); }
};

/// A native object that is no page object, and which this room knows by the name of its script class alone. The script
/// owns it from then on.
template <typename T>
constexpr const char* scriptNameOf = nullptr;
template <>
inline constexpr const char* scriptNameOf<HTML_Style> = "HTML_Style";
template <>
inline constexpr const char* scriptNameOf<HTML_XPathResult> = "HTML_XPathResult";
template <>
inline constexpr const char* scriptNameOf<CSSProperties> = "CSSProperties";

SharedPtr<Object> wrapNative(void* native, const char* className);

template <typename T>
struct NamedValue {
  static const Class* type() { return scriptClassByName(scriptNameOf<T>); }
  static SharedPtr<Object> wrap(T* value) { return wrapNative(value, scriptNameOf<T>); }
};
template <>
struct ScriptValue<HTML_Style*> : NamedValue<HTML_Style> {};
template <>
struct ScriptValue<HTML_XPathResult*> : NamedValue<HTML_XPathResult> {};
template <>
struct ScriptValue<CSSProperties*> : NamedValue<CSSProperties> {};

/// What a native member's result means: a value that cannot fail ...
template <typename T>
struct ScriptReturn {
  static constexpr ScriptType type = ScriptValue<T>::type;
  static ScriptResult take(const T& value) { return ScriptResult::success(ScriptValue<T>::wrap(value)); }
};

/// ... a value or an error ...
template <typename T>
struct ScriptReturn<FunctionCallResult<T>> {
  static constexpr ScriptType type = ScriptValue<T>::type;
  static ScriptResult take(const FunctionCallResult<T>& result) {
    return result.failed() ? ScriptResult::failure(result.error)
                           : ScriptResult::success(ScriptValue<T>::wrap(result.value));
  }
};

/// ... or nothing but an error text.
template <>
struct ScriptReturn<QString> {
  static constexpr ScriptType type = scriptVoid;
  static ScriptResult take(const QString& error) {
    return error.isEmpty() ? ScriptResult::success(wrapVoid()) : ScriptResult::failure(error);
  }
};

}  // namespace Corvex::WebWrapper
