#pragma once

#include <QStringList>

namespace Corvex::Webhook {

/// `corvexweb tree`: shows the objects of a page.
int treeCommand(const QStringList& arguments);

}  // namespace Corvex::Webhook
