#pragma once

#include "shared/functioncallresult.h"
#include "wrappers/web/export.h"
#include "wrappers/web/object/webobject.h"

#include <QString>

namespace Corvex::WebWrapper {

/// Evaluates an expression in the page and makes the object for what it gives, with `name` as its known name. A falsy
/// value in the page is a null object without an error. The expression may end in a semicolon. `timeoutMs` 0 stands for
/// the connection's default. The caller owns the object.
CORVEX_WEBWRAPPER_EXPORT FunctionCallResult<HTML_Object*> htmlObjectFromJavaScriptResult(HTMLComponent* component,
                                                                                         const QString& expression,
                                                                                         const QString& name,
                                                                                         unsigned int timeoutMs);

/// The same for an expression without a reference; see `HTMLComponent::evaluateInAnyDocument`.
FunctionCallResult<HTML_Object*> htmlObjectFromAnyDocument(HTMLComponent* component, const QString& expression,
                                                           const QString& name, unsigned int timeoutMs);

/// While one lives, objects that are retrieved are asked in the same evaluation for their readiness, which
/// `isObjectReady` then takes for its first answer. For those who ask for it right after.
class CORVEX_WEBWRAPPER_EXPORT ReadinessToo {
public:
  ReadinessToo();
  ~ReadinessToo();
  ReadinessToo(const ReadinessToo&) = delete;
  ReadinessToo& operator=(const ReadinessToo&) = delete;
};

/// The object of the class that the page's type text stands for; null when the text names nothing. An unknown text
/// gives a plain `HTML_Object`, and so does one whose extension has no name that could be one. Null for a text that is
/// no reference. The caller owns the object.
HTML_Object* htmlObjectFromReferenceInfo(HTMLComponent* component, const QString& type, const QString& reference,
                                         const QString& name);

/// The object as a `T`; an object of another class is deleted, and null.
template <typename T>
T* castOrDelete(HTML_Object* object) {
  auto* typed = dynamic_cast<T*>(object);
  if (!typed) {
    delete object;
  }
  return typed;
}

/// The same as `htmlObjectFromJavaScriptResult` where only objects of class `T` will do: others are null, without an
/// error.
template <typename T>
FunctionCallResult<T*> typeCheckedHtmlObjectFromJavaScriptResult(HTMLComponent* component, const QString& expression) {
  const FunctionCallResult<HTML_Object*> result = htmlObjectFromJavaScriptResult(component, expression, QString(), 0);
  return {castOrDelete<T>(result.value), result.error};
}

}  // namespace Corvex::WebWrapper
