#include "webhook/endpoint/pagemessage.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <algorithm>

namespace Corvex::Webhook {

namespace {

/// The code unit that `count` hexadecimal digits at `from` stand for, or -1.
int hexadecimal(const QString& text, int from, int count) {
  if (from + count > text.size()) {
    return -1;
  }
  int result = 0;
  for (int i = from; i < from + count; ++i) {
    const ushort unit = text[i].unicode();
    const ushort lower = unit | 0x20;
    if (unit >= '0' && unit <= '9') {
      result = result * 16 + unit - '0';
    } else if (lower >= 'a' && lower <= 'f') {
      result = result * 16 + lower - 'a' + 10;
    } else {
      return -1;
    }
  }
  return result;
}

std::optional<qint64> number(const QString& text) {
  const bool digitsOnly =
      std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() >= '0' && c.unicode() <= '9'; });
  bool fits = false;
  const qint64 result = digitsOnly ? text.toLongLong(&fits) : 0;
  return fits ? std::optional<qint64>(result) : std::nullopt;
}

MessageItem itemFrom(const QString& part) {
  const int equals = part.indexOf(u'=');
  const QString raw = part.mid(equals + 1);
  return {equals < 0 ? part : part.left(equals), raw, raw.contains(u'%') ? unescaped(raw) : raw};
}

}  // namespace

QString unescaped(const QString& text) {
  QString result;
  result.reserve(text.size());
  for (int i = 0; i < text.size(); ++i) {
    const bool wide = text[i] == u'%' && text.midRef(i + 1, 1) == QLatin1String("u");
    const int digits = wide ? 4 : 2;
    const int unit = text[i] == u'%' ? hexadecimal(text, i + (wide ? 2 : 1), digits) : -1;
    result.append(unit < 0 ? text[i] : QChar(ushort(unit)));
    if (unit >= 0) {
      i += digits + (wide ? 1 : 0);
    }
  }
  return result;
}

/// Takes the text of one message apart, by the row of its head.
class MessageReader {
public:
  MessageReader(const QString& head, const QString& body, bool headIsPercentEncoded)
      : m_head(head), m_body(body), m_headIsPercentEncoded(headIsPercentEncoded) {
    m_message.m_text = head + body;
  }

  PageMessage read();

private:
  using Reading = bool (MessageReader::*)(int from);
  struct Row {
    const char* head;
    MessageKind kind;
    Reading reading;
  };
  static const Row rows[];

  bool readStampAndItems(int from);
  bool readSeparatedStampAndItems(int from);
  bool readHighlight(int from);
  bool readDebugLine(int from);

  const QString m_head;
  const QString m_body;
  const bool m_headIsPercentEncoded;
  PageMessage m_message;
};

const MessageReader::Row MessageReader::rows[] = {
    {"logevent", MessageKind::LogEvent, &MessageReader::readStampAndItems},
    {"eventHandler", MessageKind::EventHandler, &MessageReader::readSeparatedStampAndItems},
    {"waitForConfirm", MessageKind::WaitForConfirm, &MessageReader::readSeparatedStampAndItems},
    {"waitForPrompt", MessageKind::WaitForPrompt, &MessageReader::readSeparatedStampAndItems},
    {"highlighteWidget", MessageKind::HighlightWidget, &MessageReader::readHighlight},
    {"debuglog", MessageKind::DebugLog, &MessageReader::readDebugLine},
};

PageMessage MessageReader::read() {
  for (const Row& row : rows) {
    const QLatin1String head(row.head);
    if (m_message.m_text.startsWith(head) && (this->*row.reading)(head.size())) {
      m_message.m_kind = row.kind;
      break;
    }
  }
  return m_message;
}

bool MessageReader::readStampAndItems(int from) {
  const QString rest = m_message.m_text.mid(from);
  const QString stamp = rest.section(u'&', 0, 0);
  // A page that replaced `Date` writes any word here; only an item says that this is not the head it looked like.
  if (stamp.contains(u'=')) {
    return false;
  }
  m_message.m_stamp = number(stamp);
  const QStringList parts = rest.mid(stamp.size()).split(u'&', Qt::SkipEmptyParts);
  for (const QString& part : parts) {
    m_message.m_items.append(itemFrom(part));
  }
  return true;
}

bool MessageReader::readSeparatedStampAndItems(int from) {
  const bool separated = m_message.m_text.midRef(from, 1) == QLatin1String("&");
  const bool stampFollows = !m_message.m_text.section(u'&', 1, 1).contains(u'=');
  return readStampAndItems(separated && stampFollows ? from + 1 : from);
}

bool MessageReader::readHighlight(int from) {
  const QString begin = QStringLiteral("&info=");
  const QString rest = m_message.m_text.mid(from);
  if (!rest.startsWith(begin)) {
    return false;
  }
  const int end = rest.lastIndexOf(u'&');
  if (end > 0) {
    m_message.m_stamp = number(rest.mid(end + 1));
  }
  m_message.m_items.append(itemFrom(rest.mid(1, end > 0 ? end - 1 : -1)));
  return true;
}

bool MessageReader::readDebugLine(int from) {
  const bool inHead = m_head.size() > from;
  if (m_head.size() < from || (inHead && m_head[from] != u'=')) {
    return false;
  }
  const QString line = inHead ? m_head.mid(from + 1) : m_body;
  const bool percentEncoded = inHead && m_headIsPercentEncoded;
  m_message.m_items.append(
      {QStringLiteral("text"), line, percentEncoded ? QUrl::fromPercentEncoding(line.toUtf8()) : line});
  return true;
}

PageMessage PageMessage::fromRequest(const QByteArray& query, const QByteArray& body) {
  return MessageReader(QString::fromUtf8(query), QString::fromUtf8(body), true).read();
}

PageMessage PageMessage::fromText(const QString& text) { return MessageReader(text, QString(), false).read(); }

QVector<PageMessage> PageMessage::fromSessionQueue(const QString& json, QString* error) {
  QJsonParseError problem;
  const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8(), &problem);
  if (error) {
    error->clear();
  }
  if (!document.isArray()) {
    const QString reason =
        problem.error == QJsonParseError::NoError ? QStringLiteral("it is no array") : problem.errorString();
    if (error) {
      *error =
          QStringLiteral("The page's session queue cannot be read: %1. Clear the page's session storage.").arg(reason);
    }
    return {};
  }
  QVector<PageMessage> result;
  const QJsonArray records = document.array();
  for (const QJsonValue& record : records) {
    const QJsonValue payload = record[QLatin1String("payload")];
    const QJsonValue url = record[QLatin1String("url")];
    if (payload.isString() && (url.isString() || url.isUndefined())) {
      result.append(url.isString() ? MessageReader(url.toString(), payload.toString(), false).read()
                                   : fromText(payload.toString()));
    } else {
      PageMessage unreadable;
      unreadable.m_text = QString::fromUtf8(QJsonDocument(QJsonArray{record}).toJson(QJsonDocument::Compact));
      result.append(unreadable);
    }
  }
  return result;
}

qint64 PageMessage::bytes() const {
  qint64 units = m_text.size();
  for (const MessageItem& item : m_items) {
    units += item.key.size() + item.raw.size() + (item.value.isSharedWith(item.raw) ? 0 : item.value.size());
  }
  return units * qint64(sizeof(QChar)) + m_items.size() * qint64(sizeof(MessageItem));
}

QString PageMessage::value(const QString& key) const {
  const auto found =
      std::find_if(m_items.rbegin(), m_items.rend(), [&key](const MessageItem& item) { return item.key == key; });
  return found == m_items.rend() ? QString() : found->value;
}

}  // namespace Corvex::Webhook
