#pragma once

#include "shared/functioncallresult.h"

#include <QString>

#include <json/value.h>

namespace Corvex::WebWrapper {

class HTMLComponent;

/// Evaluates one JavaScript expression (no statement list) in the page and gives its value. A value of `undefined` is
/// null without an error. `timeoutMs` 0 stands for the connection's default.
FunctionCallResult<Json::Value> callJavaScriptFunction(HTMLComponent* component, const QString& expression,
                                                       unsigned int timeoutMs);

/// The same for an expression without a reference; see `HTMLComponent::evaluateInAnyDocument`.
FunctionCallResult<Json::Value> callInAnyDocument(HTMLComponent* component, const QString& expression,
                                                  unsigned int timeoutMs);

}  // namespace Corvex::WebWrapper
