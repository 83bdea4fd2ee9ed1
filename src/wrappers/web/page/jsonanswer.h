#pragma once

#include "shared/functioncallresult.h"

#include <QString>

#include <json/value.h>

namespace Corvex::WebWrapper {

/// Parses an answer of the page. Failed with the reader's own description of what is wrong.
FunctionCallResult<Json::Value> parseJson(const QString& text);

/// The value as text: plain values as they read, null as the empty text, lists and objects as JSON.
QString jsonText(const Json::Value& value);

/// The value as JSON of one line, for messages.
QString compactJson(const Json::Value& value);

/// Whole part of a number; null is 0. Failed for anything that is no number of that range.
FunctionCallResult<int> jsonInt(const Json::Value& value);

/// True only for values that read as true; texts, lists and objects are none.
FunctionCallResult<bool> jsonBool(const Json::Value& value);

}  // namespace Corvex::WebWrapper
