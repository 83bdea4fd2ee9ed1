#include "webhook/endpoint/endpoint.h"

#include "webhook/endpoint/endpointserver.h"

#include <QPointer>

namespace Corvex::Webhook {

MessageEndpoint::MessageEndpoint(const EndpointLimits& limits, QObject* parent) : QObject(parent) {
  EndpointServer::Receiver receiver;
  receiver.messagesWait = [this] { QMetaObject::invokeMethod(this, &MessageEndpoint::deliver, Qt::QueuedConnection); };
  receiver.waitUnanswered = [this](quint64 id) {
    const auto tell = [this, id] {
      const QPointer<MessageEndpoint> self(this);
      deliver();
      if (self) {
        Q_EMIT waitUnanswered(id);
      }
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
  };
  m_server = std::make_unique<EndpointServer>(limits, receiver);
}

MessageEndpoint::~MessageEndpoint() { m_server->stop(); }

bool MessageEndpoint::start(QString* error) {
  QString reason;
  if (m_server->start(&reason)) {
    return true;
  }
  *error = QStringLiteral(
               "The endpoint for the pages' messages cannot listen on 127.0.0.1: %1. Let this program open a "
               "port there, or end programs that hold many.")
               .arg(reason);
  return false;
}

void MessageEndpoint::stop() { m_server->stop(); }

QString MessageEndpoint::place() const { return QString::fromLatin1(m_server->place()); }

void MessageEndpoint::setAllowedOrigins(const QStringList& origins) { m_server->policy().setAllowedOrigins(origins); }

bool MessageEndpoint::answerWait(quint64 waitId, const QString& reply) {
  return m_server->answerWait(waitId, reply.toUtf8());
}

void MessageEndpoint::deliver() {
  const std::deque<PageMessage> arrived = m_server->messages().takeAll();
  m_ready.insert(m_ready.end(), arrived.begin(), arrived.end());
  sortByStamp(m_ready);
  const QPointer<MessageEndpoint> self(this);
  while (self && !m_ready.empty()) {
    const PageMessage message = m_ready.front();
    m_ready.pop_front();
    m_server->messages().noteDelivered(message);
    Q_EMIT messageReceived(message);
  }
}

quint64 MessageEndpoint::accepted() const { return m_server->accepted(); }

QMap<QString, quint64> MessageEndpoint::refused() const { return m_server->refused(); }

}  // namespace Corvex::Webhook
