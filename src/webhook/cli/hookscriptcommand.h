#pragma once

#include <QStringList>

namespace Corvex::Webhook {

/// corvexweb hook-script [--prelude]: prints the hook script, or the text that has to run before it, and nothing else.
int hookScriptCommand(const QStringList& arguments);

}  // namespace Corvex::Webhook
