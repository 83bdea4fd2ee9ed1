#pragma once

#include <QStringList>

namespace Corvex::Webhook {

/// corvexweb run [options] SCRIPT...: runs test scripts in a browser.
int runScriptsCommand(const QStringList& arguments);

}  // namespace Corvex::Webhook
