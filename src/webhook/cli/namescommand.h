#pragma once

#include <QStringList>

namespace Corvex::Webhook {

/// corvexweb names [options] URL: the names of a page's elements, and whether they find them again.
int namesCommand(const QStringList& arguments);

}  // namespace Corvex::Webhook
