#pragma once

#include <QJSValue>

namespace Corvex::Scripting {

class Values;

/// A script value as it is shown to people, whatever it is: of long texts and of large arrays a part.
QString valueText(const Values& values, const QJSValue& value);

}  // namespace Corvex::Scripting
