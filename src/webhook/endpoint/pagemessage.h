#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>
#include <optional>

namespace Corvex::Webhook {

/// What a page wants to say, by the word that its text begins with.
enum class MessageKind {
  Unknown,          ///< Any other text. It keeps its text() and has neither stamp nor items.
  LogEvent,         ///< Something that happened in the page.
  EventHandler,     ///< A window or a dialog opened, or a page is about to go.
  WaitForConfirm,   ///< A page stands still until it is told the answer of its confirm dialog.
  WaitForPrompt,    ///< The same for a prompt.
  HighlightWidget,  ///< The mouse rests on an object while picking. Item "info": rectangle, comma, name.
  DebugLog,         ///< A line for the log, in the item "text".
};

/// One part of a message. A part without "=" has its whole text as key and as value.
struct MessageItem {
  QString key;
  QString raw;    ///< The value as the page wrote it.
  QString value;  ///< The value with the page's `escape` undone.
};

/// A text that a page sent of its own accord, taken apart. No text is an error: what cannot be read is `Unknown`.
class PageMessage {
public:
  PageMessage() = default;

  /// From a request: `query` is what stood after "/?", untouched, and `body` the rest of the text in UTF-8.
  static PageMessage fromRequest(const QByteArray& query, const QByteArray& body = {});

  /// From a channel that carries texts as they are.
  static PageMessage fromText(const QString& text);

  /// From a page's session queue: a JSON array of records with `payload`, and with `url` where the text has a head of
  /// its own. A record of another form gives an `Unknown` message with the record as text. If `json` is no array the
  /// result is empty, and `error` gets a sentence that says so.
  static QVector<PageMessage> fromSessionQueue(const QString& json, QString* error = nullptr);

  MessageKind kind() const { return m_kind; }
  const QString& text() const { return m_text; }

  /// The time at which the page built the text, in milliseconds since 1970. Absent where a page gave none, or one that
  /// is no number.
  std::optional<qint64> stamp() const { return m_stamp; }

  const QVector<MessageItem>& items() const { return m_items; }

  /// The decoded value of the last item of that key, or a null text.
  QString value(const QString& key) const;

  /// What it takes of the memory, about.
  qint64 bytes() const;

  /// Whether a page stands still until it gets a reply.
  bool wantsReply() const { return m_kind == MessageKind::WaitForConfirm || m_kind == MessageKind::WaitForPrompt; }

  /// What the reply is given to, 0 where none is open.
  quint64 waitId() const { return m_waitId; }
  void setWaitId(quint64 waitId) { m_waitId = waitId; }

private:
  friend class MessageReader;

  MessageKind m_kind = MessageKind::Unknown;
  QString m_text;
  std::optional<qint64> m_stamp;
  QVector<MessageItem> m_items;
  quint64 m_waitId = 0;
};

}  // namespace Corvex::Webhook
