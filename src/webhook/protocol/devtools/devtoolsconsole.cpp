#include "webhook/protocol/devtools/devtoolsconsole.h"

#include <QJsonArray>
#include <QStringList>

namespace Corvex::Webhook::DevTools {

namespace {

QString textAt(const QJsonObject& object, const char* key) { return object.value(QLatin1String(key)).toString(); }

QJsonObject objectAt(const QJsonObject& object, const char* key) { return object.value(QLatin1String(key)).toObject(); }

QString textOfValue(const QJsonObject& remote) {
  const QJsonValue value = remote.value(QLatin1String("value"));
  if (value.isString()) {
    return value.toString();
  }
  if (textAt(remote, "subtype") == QLatin1String("null")) {
    return QStringLiteral("null");
  }
  if (textAt(remote, "subtype") == QLatin1String("error")) {
    return textAt(remote, "description").section(QLatin1Char('\n'), 0, 0);
  }
  const QString type = textAt(remote, "type");
  if (type == QLatin1String("object") || type == QLatin1String("function")) {
    const QString subtype = textAt(remote, "subtype");
    return subtype.isEmpty() ? type : subtype;
  }
  if (value.isBool()) {
    return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
  }
  const QString description = textAt(remote, "description");
  return description.isEmpty() ? type : description;
}

QString levelOf(const QString& type) {
  return type == QLatin1String("error") || type == QLatin1String("assert") ? QStringLiteral("error")
         : type == QLatin1String("warning")                                ? QStringLiteral("warn")
         : type == QLatin1String("debug")                                  ? QStringLiteral("debug")
                                                                           : QStringLiteral("info");
}

ConsoleMessage readCall(const QJsonObject& event) {
  QStringList texts;
  for (const QJsonValue& argument : event.value(QLatin1String("args")).toArray()) {
    texts << textOfValue(argument.toObject());
  }
  const QJsonObject place =
      objectAt(event, "stackTrace").value(QLatin1String("callFrames")).toArray().first().toObject();
  const int line = place.isEmpty() ? 0 : place.value(QLatin1String("lineNumber")).toInt() + 1;
  return {levelOf(textAt(event, "type")), texts.join(QLatin1Char(' ')), textAt(place, "url"), line, false};
}

ConsoleMessage readException(const QJsonObject& details) {
  const QJsonObject thrown = objectAt(details, "exception");
  QString text = thrown.isEmpty() ? textAt(details, "text") : textOfValue(thrown);
  return {QStringLiteral("error"), text, textAt(details, "url"), details.value(QLatin1String("lineNumber")).toInt() + 1,
          true};
}

}  // namespace

Command watchConsole() { return {QStringLiteral("Runtime.enable"), {}}; }

std::optional<ConsoleMessage> readConsoleMessage(const QString& method, const QJsonObject& event) {
  if (method == QLatin1String("Runtime.consoleAPICalled")) {
    return readCall(event);
  }
  if (method == QLatin1String("Runtime.exceptionThrown")) {
    return readException(objectAt(event, "exceptionDetails"));
  }
  return {};
}

}  // namespace Corvex::Webhook::DevTools
