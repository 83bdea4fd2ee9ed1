#pragma once

#include <QString>

namespace Corvex::Webhook {

/// The script text of a file of a folder `inpage`, after a line break. A comment such as /*%3*/, which the linter can
/// read, has become the place %3 for code.
QString inPageText(const char* name);

}  // namespace Corvex::Webhook
