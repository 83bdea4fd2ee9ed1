#pragma once

#include "corvexhook/method.h"

#include <QString>

namespace Corvex::Webhook {

/// The text as a literal of a script, on one line and with everything to be seen: what cannot be printed stands there
/// as `\u001b`.
QString scriptLiteral(const QString& text);

/// A recorded call as one line of a script, without a line break. `objectName` is how the script names the object.
QString scriptLine(const EventData& call, const QString& objectName);
/// The same for text that is to be known to nobody: the script looks it up in this variable of its environment.
QString scriptLineWithSecret(const EventData& call, const QString& objectName, const QString& variable);

/// Whether the name of a call is that of an object of a page, and not an address, a context or a window.
bool namesAnObject(const EventData& call);

}  // namespace Corvex::Webhook
