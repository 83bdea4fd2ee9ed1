#include "webhook/protocol/transport/transport.h"

#include <QPointer>
#include <utility>

namespace Corvex::Webhook {

void Transport::noteClosed(const QString& reason) {
  if (m_closeNoted) {
    return;
  }
  m_closeNoted = true;
  m_closeReason = reason;
}

void Transport::deliver() {
  const QPointer<Transport> self(this);
  while (self && !m_inbox.empty()) {
    const QByteArray message = std::move(m_inbox.front());
    m_inbox.pop_front();
    // The receiver may wait for one of the messages that stand after this one.
    if (!m_inbox.empty() || m_closeNoted) {
      QMetaObject::invokeMethod(this, &Transport::deliver, Qt::QueuedConnection);
    }
    Q_EMIT messageReceived(message);
  }
  if (self && m_closeNoted && !m_closeReason.isNull()) {
    Q_EMIT closed(std::exchange(m_closeReason, QString()));
  }
}

QString Transport::tooLong() {
  return QStringLiteral("it sent a message of more than %1 MB").arg(messageLimit / (1024 * 1024));
}

void Transport::discardInbox() {
  m_inbox.clear();
  m_closeNoted = true;
  m_closeReason = QString();
}

}  // namespace Corvex::Webhook
