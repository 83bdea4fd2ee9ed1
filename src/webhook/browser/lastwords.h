#pragma once

#include <QByteArray>
#include <QString>

namespace Corvex::Webhook {

/// The last lines of a browser's output that may say why it ended, in one line; "" when none does. What browsers always
/// write, and what they write of themselves when they crash, is left out.
QString lastWords(const QByteArray& output);

}  // namespace Corvex::Webhook
