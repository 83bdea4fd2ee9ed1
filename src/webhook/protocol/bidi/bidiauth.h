#pragma once

#include <QVector>
#include <optional>

#include "webhook/protocol/credentials.h"
#include "webhook/protocol/dialect.h"

/// Questions of servers in WebDriver BiDi.
namespace Corvex::Webhook::Bidi {

/// Has questions told, and their requests wait for answerQuestion().
QVector<Command> holdQuestions();
/// Nothing for other events.
std::optional<AuthQuestion> readQuestion(const QString& method, const QJsonObject& event);
/// Without credentials the question is refused, and the page gets what the server sends then.
Command answerQuestion(const AuthQuestion& question, const std::optional<Credentials>& credentials);

}  // namespace Corvex::Webhook::Bidi
