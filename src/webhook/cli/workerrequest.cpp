#include "webhook/cli/workerrequest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace Corvex::Webhook {

namespace {

const QString pathKey = QStringLiteral("path");
const QString functionsKey = QStringLiteral("functions");
const QString attemptKey = QStringLiteral("attempt");
const QString attemptsKey = QStringLiteral("attempts");

}  // namespace

QString workerRequest(const Scripting::ScriptChoice& script) {
  const QJsonObject request{{pathKey, script.path},
                            {functionsKey, QJsonArray::fromStringList(script.functions)},
                            {attemptKey, script.attempt},
                            {attemptsKey, script.attempts}};
  return QString::fromUtf8(QJsonDocument(request).toJson(QJsonDocument::Compact));
}

FunctionCallResult<Scripting::ScriptChoice> readWorkerRequest(const QString& text) {
  using Result = FunctionCallResult<Scripting::ScriptChoice>;
  const QJsonObject request = QJsonDocument::fromJson(text.toUtf8()).object();
  Result result;
  result.value.path = request.value(pathKey).toString();
  for (const QJsonValue& function : request.value(functionsKey).toArray()) {
    result.value.functions << function.toString();
  }
  result.value.attempt = std::max(1, request.value(attemptKey).toInt());
  result.value.attempts = std::max(1, request.value(attemptsKey).toInt());
  return result.value.path.isEmpty()
             ? Result::failure(QStringLiteral("--worker is for processes that --jobs starts, and takes what they run."))
             : result;
}

}  // namespace Corvex::Webhook
