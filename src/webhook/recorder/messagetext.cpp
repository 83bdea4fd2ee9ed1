#include "webhook/recorder/messagetext.h"

#include <QUrl>

namespace Corvex::Webhook {

QString inEscapes(const QString& text) {
  QString result;
  for (const QChar unit : text) {
    result += QStringLiteral("%u%1").arg(unit.unicode(), 4, 16, QLatin1Char('0'));
  }
  return result;
}

// Only the browser has encoded the answer, for an address.
QString withEscapedAnswer(const QString& message) {
  const QString head = QStringLiteral("event=prompt&ret=");
  const int at = message.indexOf(head);
  if (at < 0) {
    return message;
  }
  const int begin = at + head.size();
  return message.left(begin) + inEscapes(QUrl::fromPercentEncoding(message.mid(begin).toUtf8()));
}

}  // namespace Corvex::Webhook
