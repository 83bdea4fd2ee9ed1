#pragma once

#include "corvexhook/object.h"
#include "shared/functioncallresult.h"
#include "wrappers/web/export.h"

#include <QString>

namespace Corvex::WebWrapper {

class HTMLComponent;

/// The number, as text, under which the page keeps a value.
using JsObjectId = QString;

/// The expression for that value in the page.
QString jsObjectIdToJSCode(const JsObjectId& id);

/// A value of the page that is no element: an object, a list, a regular expression. It lives as long as its page; the
/// connection is not owned.
class JsObject {
public:
  static constexpr const char* ScriptName = "JsObject";

  JsObject(const JsObjectId& id, HTMLComponent* connection);
  ~JsObject();

  /// The value of a property, as `retrieveJSObject` gives it.
  FunctionCallResult<SharedPtr<Object>> property(const QString& name) const;
  /// Calls a method with the entries of a list as its arguments: plain values, lists, handles and page objects.
  FunctionCallResult<SharedPtr<Object>> call(const QString& method, const SharedPtr<Object>& arguments) const;

  bool hasValidReference() const;
  static QString deadError();

  JsObject(const JsObject&) = delete;
  JsObject& operator=(const JsObject&) = delete;

  QString reference;
  HTMLComponent* component;
};

/// Evaluates code, an expression or several statements, in the page. A text, number, boolean or null of the page is a
/// script value of its kind, `undefined` is no value, anything structured is a `JsObject`. On a page whose policy
/// forbids `eval` only an expression will do.
CORVEX_WEBWRAPPER_EXPORT FunctionCallResult<SharedPtr<Object>> retrieveJSObject(HTMLComponent* component,
                                                                                const QString& code);

}  // namespace Corvex::WebWrapper
