#pragma once

#include <QStringList>

namespace Corvex::Webhook {

/// corvexweb typings: prints a TypeScript declaration file for editors of test scripts.
int typingsCommand(const QStringList& arguments);

}  // namespace Corvex::Webhook
