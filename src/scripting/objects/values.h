#pragma once

#include <QJSValue>
#include <memory>
#include <vector>

#include "scripting/objects/liveobjects.h"
#include "shared/functioncallresult.h"

class QJSEngine;

namespace Corvex {
class Class;
}

namespace Corvex::Scripting {

/// Turns script values into objects of the object model and back, within one
/// script engine.
class Values {
public:
  explicit Values(QJSEngine* engine);
  /// Lets go of all objects that the script held.
  ~Values();

  /// `wrap` makes a script object around a handle, `handleOf` gives the handle
  /// behind a script object, or undefined. Needed before any object passes.
  void setWrappers(const QJSValue& wrap, const QJSValue& handleOf);

  /// A whole number that fits is an int, any other a double; null and undefined
  /// are a null pointer; an array is a list; a date is a date.
  FunctionCallResult<SharedPtr<Object>> fromScript(const QJSValue& value) const;
  FunctionCallResult<ObjectList> listFromScript(const QJSValue& array) const;
  /// A null pointer and a void value are undefined, a null object is null.
  QJSValue toScript(const SharedPtr<Object>& object);

  /// The object behind a script object; null for any other value.
  SharedPtr<Object> objectOf(const QJSValue& value) const;
  /// The object of a handle itself.
  static SharedPtr<Object> objectOfHandle(const QJSValue& handle);

  /// Whether it is an object that is nothing but its properties, such as a literal `{a: 1}`.
  bool isPlainObject(const QJSValue& value) const;
  /// The names of the properties that an object itself has and shows.
  QStringList keysOf(const QJSValue& object) const;

  /// The text of an object, for texts that a script puts it into.
  static QString textOf(const SharedPtr<Object>& object);
  static quint32 lengthOf(const QJSValue& array);

  const Class* classOfNumber(int number) const;
  /// -1 for null.
  int numberOfClass(const Class* cls);

  LiveObjects& liveObjects() const { return *m_live; }

private:
  /// How much may still be read.
  struct Limits {
    int levels;
    quint32 entries;
  };

  FunctionCallResult<SharedPtr<Object>> fromScript(const QJSValue& value, Limits* limits) const;
  FunctionCallResult<SharedPtr<Object>> arrayFromScript(const QJSValue& array, Limits* limits) const;
  FunctionCallResult<ObjectList> listFromScript(const QJSValue& array, Limits* limits) const;
  QJSValue arrayToScript(const SharedPtr<Object>& list);

  QJSEngine* m_engine;
  QJSValue m_wrap;
  QJSValue m_handleOf;
  QJSValue m_plainPrototype;
  QJSValue m_keysOf;
  std::vector<const Class*> m_classes;
  std::shared_ptr<LiveObjects> m_live;
};

}  // namespace Corvex::Scripting
