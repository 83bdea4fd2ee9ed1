#pragma once

#include <QStringList>

namespace Corvex::Webhook {

/// `corvexweb dump`: writes a page as a file that shows its picture and its objects.
int dumpCommand(const QStringList& arguments);

}  // namespace Corvex::Webhook
