#pragma once

#include <QStringList>

namespace Corvex::Webhook {

/// `corvexweb pick [options] URL`; `arguments` begins with "pick". Answers the exit code.
int pickCommand(const QStringList& arguments);

}  // namespace Corvex::Webhook
