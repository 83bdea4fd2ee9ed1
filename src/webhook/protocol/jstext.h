#pragma once

#include <QString>

namespace Corvex::Webhook {

/// The text that JavaScript's String() gives for a number: shortest digits that read back as the same number, "0" for
/// negative zero, "1e+21" from there on, "NaN", "Infinity".
QString jsNumberText(double number);

}  // namespace Corvex::Webhook
