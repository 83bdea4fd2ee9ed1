#include "webhook/protocol/bidi/bidiauth.h"

#include <QJsonArray>

namespace Corvex::Webhook::Bidi {

namespace {

const char* const questionEvent = "network.authRequired";

}  // namespace

QVector<Command> holdQuestions() {
  const QJsonArray phases{QStringLiteral("authRequired")};
  return {{QStringLiteral("session.subscribe"), {{QStringLiteral("events"), QJsonArray{QLatin1String(questionEvent)}}}},
          {QStringLiteral("network.addIntercept"), {{QStringLiteral("phases"), phases}}}};
}

std::optional<AuthQuestion> readQuestion(const QString& method, const QJsonObject& event) {
  if (method != QLatin1String(questionEvent) || !event.value(QLatin1String("isBlocked")).toBool()) {
    return {};
  }
  const QJsonObject request = event.value(QLatin1String("request")).toObject();
  const QString id = request.value(QLatin1String("request")).toString();
  const int status = event.value(QLatin1String("response")).toObject().value(QLatin1String("status")).toInt();
  const int redirects = event.value(QLatin1String("redirectCount")).toInt();
  return AuthQuestion{id, QStringLiteral("%1 %2 %3").arg(id).arg(redirects).arg(status),
                      request.value(QLatin1String("url")).toString(), status == 407};
}

Command answerQuestion(const AuthQuestion& question, const std::optional<Credentials>& credentials) {
  QJsonObject parameters{{QStringLiteral("request"), question.request},
                         {QStringLiteral("action"), QStringLiteral("cancel")}};
  if (credentials) {
    parameters.insert(QStringLiteral("action"), QStringLiteral("provideCredentials"));
    parameters.insert(QStringLiteral("credentials"), QJsonObject{{QStringLiteral("type"), QStringLiteral("password")},
                                                                 {QStringLiteral("username"), credentials->user},
                                                                 {QStringLiteral("password"), credentials->password}});
  }
  return {QStringLiteral("network.continueWithAuth"), parameters, true};
}

}  // namespace Corvex::Webhook::Bidi
