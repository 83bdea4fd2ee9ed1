#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <deque>

namespace Corvex::Webhook {

/// Carries whole messages to a browser and back, knowing nothing of what they say. Messages come in the order in which
/// they were sent, also when a receiver of one waits for a later one. A receiver may delete the transport.
class Transport : public QObject {
  Q_OBJECT

public:
  using QObject::QObject;

  /// Bytes of one message at the most. A longer one ends the connection.
  static constexpr int messageLimit = 128 * 1024 * 1024;

  /// Sends one message, or drops it when the transport is closed.
  virtual void send(const QByteArray& message) = 0;

  /// Closes without a signal; nothing is received any more.
  virtual void close() = 0;

Q_SIGNALS:
  void messageReceived(const QByteArray& message);

  /// The other side is gone. Comes once, after the last message, and never after close().
  void closed(const QString& reason);

protected:
  /// Puts a message after those that are not delivered yet.
  void enqueue(const QByteArray& message) { m_inbox.push_back(message); }

  /// Notes the end of the connection; deliver() tells it after the last message.
  void noteClosed(const QString& reason);

  /// Delivers what is queued. This object may be gone on return.
  void deliver();

  void discardInbox();

  /// Why a connection ends that brings a message without end.
  static QString tooLong();

private:
  std::deque<QByteArray> m_inbox;
  QString m_closeReason;
  bool m_closeNoted = false;
};

}  // namespace Corvex::Webhook
