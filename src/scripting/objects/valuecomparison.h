#pragma once

#include <QJSValue>
#include <QString>

#include "shared/functioncallresult.h"

namespace Corvex::Scripting {

class Values;

/// Where two script values differ first.
struct Difference {
  bool isNone = true;
  /// As a script writes it: ".items[2].price"; empty for the values themselves.
  QString path;
  /// "3, but expected 4"
  QString text;
};

/// Compares two script values without conversion: arrays, plain objects and dates by what they hold, other objects by
/// whether they are the same. Values that are too large or too deeply nested to be compared are an error.
FunctionCallResult<Difference> firstDifference(const Values& values, const QJSValue& actual, const QJSValue& expected);

}  // namespace Corvex::Scripting
