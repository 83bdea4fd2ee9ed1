#include "webhook/protocol/bidi/bidiconsole.h"

#include <QJsonArray>
#include <QStringList>

#include "webhook/protocol/jstext.h"

namespace Corvex::Webhook::Bidi {

namespace {

const char* const event = "log.entryAdded";

QString textAt(const QJsonObject& object, const char* key) { return object.value(QLatin1String(key)).toString(); }

QString textOfValue(const QJsonObject& remote) {
  const QJsonValue value = remote.value(QLatin1String("value"));
  const QString type = textAt(remote, "type");
  if (type == QLatin1String("number") && value.isDouble()) {
    return jsNumberText(value.toDouble());
  }
  if (value.isBool()) {
    return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
  }
  return value.isString() ? value.toString() : type;
}

/// The browser's own text where it says more than the arguments do.
QString textOf(const QJsonObject& entry) {
  QStringList texts;
  for (const QJsonValue& argument : entry.value(QLatin1String("args")).toArray()) {
    const QJsonObject remote = argument.toObject();
    if (textAt(remote, "type") == QLatin1String("error")) {
      return textAt(entry, "text");
    }
    texts << textOfValue(remote);
  }
  return texts.join(QLatin1Char(' '));
}

/// Firefox tells what a policy kept from the page, and of answers that are no XML, as it tells errors of scripts.
bool isNotice(const QString& text) {
  return text.startsWith(QLatin1String("Content-Security-Policy")) ||
         text.startsWith(QLatin1String("Cross-Origin Request Blocked: ")) ||
         text.startsWith(QLatin1String("XML Parsing Error: "));
}

}  // namespace

Command watchConsole() {
  return {QStringLiteral("session.subscribe"), {{QStringLiteral("events"), QJsonArray{QLatin1String(event)}}}};
}

std::optional<ConsoleMessage> readConsoleMessage(const QString& method, const QJsonObject& entry) {
  if (method != QLatin1String(event)) {
    return {};
  }
  ConsoleMessage message;
  message.level = textAt(entry, "level");
  const bool isOfScript = textAt(entry, "type") == QLatin1String("javascript");
  const bool isOfBrowser = isNotice(textAt(entry, "text"));
  message.isUncaught = isOfScript && !isOfBrowser && message.level == QLatin1String("error");
  message.text = isOfScript ? textAt(entry, "text").section(QLatin1Char('\n'), 0, 0) : textOf(entry);
  for (const char* lead : {"uncaught exception: ", "Uncaught (in promise) ", "Uncaught "}) {
    if (message.isUncaught && message.text.startsWith(QLatin1String(lead))) {
      message.text = message.text.mid(int(qstrlen(lead)));
    }
  }
  const QJsonObject stack = entry.value(QLatin1String("stackTrace")).toObject();
  const QJsonObject place = stack.value(QLatin1String("callFrames")).toArray().first().toObject();
  message.url = textAt(place, "url");
  message.line = place.isEmpty() ? 0 : place.value(QLatin1String("lineNumber")).toInt() + 1;
  return message;
}

}  // namespace Corvex::Webhook::Bidi
