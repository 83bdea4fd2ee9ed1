#pragma once

#include <QString>

namespace Corvex::Webhook {

/// The script text of a file of a folder `inpage`, behind a line break.
QString inPageText(const char* name);

}  // namespace Corvex::Webhook
