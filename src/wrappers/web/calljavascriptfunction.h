#pragma once

#include "corvexhook/functioncallresult.h"

#include <QString>

#include <json/value.h>

namespace Corvex::WebWrapper {

class HTMLComponent;
class HTML_Object;

/// Evaluates one JavaScript expression (no statement list) in the page and gives its value. A value of `undefined` is
/// null without an error. `timeoutMs` 0 stands for the connection's default.
FunctionCallResult<Json::Value> callJavaScriptFunction(HTMLComponent* component, const QString& expression,
                                                       unsigned int timeoutMs);

/// The document of the page's current context; a page without one gets its top window as the current context.
FunctionCallResult<HTML_Object*> contextDocument(HTMLComponent* component);

/// The document that a name such as "DOCUMENT[a.b]" means; null when there is none.
FunctionCallResult<HTML_Object*> documentByContextName(HTMLComponent* component, const QString& name);

}  // namespace Corvex::WebWrapper
