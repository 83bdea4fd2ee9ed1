#pragma once

#include <optional>

#include "webhook/protocol/consolemessage.h"
#include "webhook/protocol/dialect.h"

/// The console of pages in WebDriver BiDi.
namespace Corvex::Webhook::Bidi {

Command watchConsole();
/// Nothing for events about other things.
std::optional<ConsoleMessage> readConsoleMessage(const QString& method, const QJsonObject& event);

}  // namespace Corvex::Webhook::Bidi
