#pragma once

#include <QString>

namespace Corvex::Webhook {

/// Any text as the value of an item of a message.
QString inEscapes(const QString& text);

/// The message as it can be read: what was typed into a prompt ends it, as the page got it.
QString withEscapedAnswer(const QString& message);

}  // namespace Corvex::Webhook
