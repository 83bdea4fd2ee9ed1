#pragma once

#include <QDeadlineTimer>
#include <QString>

#include <map>

namespace Corvex::Webhook {

/// Puts messages of pages into the order in which they were sent. They overtake each other on their way, as each has a
/// connection of its own: so each waits for a moment for those before it.
class MessageOrder {
public:
  explicit MessageOrder(int patienceMs) : m_patienceMs(patienceMs) {}

  /// A message without a stamp counts as sent now.
  void add(const QString& message);
  bool isEmpty() const { return m_messages.empty(); }
  /// Whether the next message, or one after it, has waited for long enough.
  bool isNextDue() const;
  /// The next message, which there has to be.
  QString takeNext();

private:
  struct Waiting {
    QString text;
    QDeadlineTimer end;
  };

  int m_patienceMs;
  std::multimap<qint64, Waiting> m_messages;
};

}  // namespace Corvex::Webhook
