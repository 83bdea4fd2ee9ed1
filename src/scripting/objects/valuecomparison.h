#pragma once

#include <QJSValue>

#include "shared/functioncallresult.h"

namespace Corvex::Scripting {

class Values;

/// Whether two script values are equal without conversion: objects when they are the same, arrays and dates by what
/// they hold. Arrays that are too large or too deeply nested to be compared are an error.
FunctionCallResult<bool> equalValues(const Values& values, const QJSValue& a, const QJSValue& b);

}  // namespace Corvex::Scripting
