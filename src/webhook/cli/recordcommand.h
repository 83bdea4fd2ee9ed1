#pragma once

#include <QStringList>

namespace Corvex::Webhook {

/// `corvexweb record [options] URL`; `arguments` begins with "record". Answers the exit code.
int recordCommand(const QStringList& arguments);

}  // namespace Corvex::Webhook
