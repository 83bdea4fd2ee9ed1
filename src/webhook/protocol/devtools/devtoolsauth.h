#pragma once

#include <optional>

#include "webhook/protocol/credentials.h"
#include "webhook/protocol/dialect.h"

/// Requests that wait for a word of the driver, and questions of servers, in the DevTools protocol.
namespace Corvex::Webhook::DevTools {

/// Has documents and what scripts ask for, or with `all` every request, wait for goOn(), and their questions for
/// answerQuestion().
Command holdRequests(bool all);

/// Lets a held request go on; nothing for other events. A document that a server refused is shown as it sent it: the
/// browser would hide it and show a dialog that only a person can answer.
std::optional<Command> goOn(const QString& method, const QJsonObject& event);

/// Nothing for other events.
std::optional<AuthQuestion> readQuestion(const QString& method, const QJsonObject& event);
/// Without credentials the question is refused, and the page gets what the server sends then.
Command answerQuestion(const AuthQuestion& question, const std::optional<Credentials>& credentials);

}  // namespace Corvex::Webhook::DevTools
