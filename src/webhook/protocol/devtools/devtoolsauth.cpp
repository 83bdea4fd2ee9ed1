#include "webhook/protocol/devtools/devtoolsauth.h"

#include <QJsonArray>

namespace Corvex::Webhook::DevTools {

namespace {

QString textAt(const QJsonObject& object, const char* key) { return object.value(QLatin1String(key)).toString(); }

QJsonObject held(const QString& kind, const char* stage) {
  QJsonObject pattern{{QStringLiteral("urlPattern"), QStringLiteral("*")},
                      {QStringLiteral("requestStage"), QLatin1String(stage)}};
  if (!kind.isEmpty()) {
    pattern.insert(QStringLiteral("resourceType"), kind);
  }
  return pattern;
}

bool isQuestion(const QJsonObject& header) {
  return textAt(header, "name").compare(QLatin1String("WWW-Authenticate"), Qt::CaseInsensitive) == 0;
}

}  // namespace

Command holdRequests(bool all) {
  QJsonArray patterns{held(QStringLiteral("Document"), "Response")};
  if (all) {
    patterns.append(held({}, "Request"));
  } else {
    for (const char* kind : {"Document", "XHR", "Fetch"}) {
      patterns.append(held(QLatin1String(kind), "Request"));
    }
  }
  return {QStringLiteral("Fetch.enable"),
          {{QStringLiteral("handleAuthRequests"), true}, {QStringLiteral("patterns"), patterns}}};
}

std::optional<Command> goOn(const QString& method, const QJsonObject& event) {
  if (method != QLatin1String("Fetch.requestPaused")) {
    return {};
  }
  QJsonObject parameters{{QStringLiteral("requestId"), event.value(QLatin1String("requestId"))}};
  QJsonArray headers;
  bool hasQuestion = false;
  for (const QJsonValue& header : event.value(QLatin1String("responseHeaders")).toArray()) {
    hasQuestion = hasQuestion || isQuestion(header.toObject());
    if (!isQuestion(header.toObject())) {
      headers.append(header);
    }
  }
  const int status = event.value(QLatin1String("responseStatusCode")).toInt();
  if (status != 401 || !hasQuestion) {
    return Command{QStringLiteral("Fetch.continueRequest"), parameters};
  }
  parameters.insert(QStringLiteral("responseCode"), status);
  parameters.insert(QStringLiteral("responsePhrase"), QStringLiteral("Unauthorized"));
  parameters.insert(QStringLiteral("responseHeaders"), headers);
  return Command{QStringLiteral("Fetch.continueResponse"), parameters};
}

std::optional<AuthQuestion> readQuestion(const QString& method, const QJsonObject& event) {
  if (method != QLatin1String("Fetch.authRequired")) {
    return {};
  }
  const QJsonObject challenge = event.value(QLatin1String("authChallenge")).toObject();
  const bool isOfProxy = textAt(challenge, "source") == QLatin1String("Proxy");
  const QString request = textAt(event, "requestId");
  return AuthQuestion{request, request + (isOfProxy ? QStringLiteral(" proxy") : QString()),
                      textAt(event.value(QLatin1String("request")).toObject(), "url"), isOfProxy};
}

Command answerQuestion(const AuthQuestion& question, const std::optional<Credentials>& credentials) {
  QJsonObject answer{
      {QStringLiteral("response"), credentials ? QStringLiteral("ProvideCredentials") : QStringLiteral("CancelAuth")}};
  if (credentials) {
    answer.insert(QStringLiteral("username"), credentials->user);
    answer.insert(QStringLiteral("password"), credentials->password);
  }
  return {QStringLiteral("Fetch.continueWithAuth"),
          {{QStringLiteral("requestId"), question.request}, {QStringLiteral("authChallengeResponse"), answer}},
          true};
}

}  // namespace Corvex::Webhook::DevTools
