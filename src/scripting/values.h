#pragma once

#include <QJSValue>
#include <memory>
#include <vector>

#include "scripting/liveobjects.h"
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
  FunctionCallResult<SharedPtr<Object>> fromScript(const QJSValue& value, int depth = 0) const;
  /// `depth` counts the arrays around this one.
  FunctionCallResult<ObjectList> listFromScript(const QJSValue& array, int depth = 0) const;
  /// A null pointer and a void value are undefined, a null object is null.
  QJSValue toScript(const SharedPtr<Object>& object);

  /// The object behind a script object; null for any other value.
  SharedPtr<Object> objectOf(const QJSValue& value) const;
  /// The object of a handle itself.
  static SharedPtr<Object> objectOfHandle(const QJSValue& handle);

  /// Equal without conversion; objects when they are the same, arrays and dates
  /// by what they hold.
  bool areEqual(const QJSValue& a, const QJSValue& b, int depth = 0) const;
  /// A value as it is shown to people.
  QString describe(const QJSValue& value, int depth = 0) const;

  const Class* classOfNumber(int number) const;
  /// -1 for null.
  int numberOfClass(const Class* cls);

  LiveObjects& liveObjects() { return *m_live; }

private:
  QJSValue arrayToScript(const SharedPtr<Object>& list);

  QJSEngine* m_engine;
  QJSValue m_wrap;
  QJSValue m_handleOf;
  std::vector<const Class*> m_classes;
  std::shared_ptr<LiveObjects> m_live;
};

}  // namespace Corvex::Scripting
