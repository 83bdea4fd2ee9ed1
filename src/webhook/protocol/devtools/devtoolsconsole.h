#pragma once

#include <optional>

#include "webhook/protocol/consolemessage.h"
#include "webhook/protocol/dialect.h"

/// The console of pages in the DevTools protocol.
namespace Corvex::Webhook::DevTools {

Command watchConsole();
/// Nothing for events about other things.
std::optional<ConsoleMessage> readConsoleMessage(const QString& method, const QJsonObject& event);

}  // namespace Corvex::Webhook::DevTools
