#include "webhook/protocol/transport/channel.h"

#include <utility>

#include "webhook/protocol/log.h"

namespace Corvex::Webhook {

namespace {

constexpr int loggedLength = 1000;
constexpr int loggedUnreadable = 10;

void end(Request& request, Reply reply) {
  request.reply = std::move(reply);
  request.complete();
}

}  // namespace

Channel::Channel(std::unique_ptr<Transport> transport, const Dialect& dialect)
    : m_transport(std::move(transport)), m_dialect(dialect) {
  connect(m_transport.get(), &Transport::messageReceived, this, &Channel::takeMessage);
  connect(m_transport.get(), &Transport::closed, this, [this](const QString& reason) {
    endAll(reason);
    Q_EMIT closed(reason);
  });
}

Channel::~Channel() { close(QStringLiteral("the connection was closed")); }

std::shared_ptr<Request> Channel::start(const QString& session, const Command& command) {
  auto request = std::make_shared<Request>();
  request->id = ++m_lastId;
  request->session = session;
  if (m_closed) {
    end(*request, {Reply::Lost, {}, m_closeReason});
    return request;
  }
  m_open[request->id] = request;
  const QByteArray text = m_dialect.write(request->id, session, command);
  qCDebug(webhookLog).noquote() << "->" << (command.isSecret ? command.method.toUtf8() : text.left(loggedLength));
  m_transport->send(text);
  return request;
}

Reply Channel::call(const QString& session, const Command& command, const QDeadlineTimer& deadline) {
  const QPointer<Channel> self(this);
  const std::shared_ptr<Request> request = start(session, command);
  if (waitFor(*request, deadline) == WaitResult::Complete) {
    return request->reply;
  }
  end(*request, {Reply::TimeOver, {}, {}});
  if (self) {
    m_open.erase(request->id);
  }
  return request->reply;
}

void Channel::cancelSession(const QString& session, const QString& reason) {
  for (auto entry = m_open.begin(); entry != m_open.end();) {
    if (entry->second->session != session) {
      ++entry;
      continue;
    }
    end(*entry->second, {Reply::Cancelled, {}, reason});
    entry = m_open.erase(entry);
  }
}

void Channel::subscribe(const QString& session, QObject* receiver, EventHandler handler) {
  m_subscriptions[session] = {receiver, std::move(handler)};
}

void Channel::close(const QString& reason) {
  m_transport->close();
  endAll(reason);
}

void Channel::takeMessage(const QByteArray& text) {
  const bool isSecret = text.contains("uthorization");  // a header, in any of its forms
  qCDebug(webhookLog).noquote() << "<-"
                                << (isSecret ? QByteArray("a message with a password") : text.left(loggedLength));
  const WireMessage message = m_dialect.read(text);
  switch (message.kind) {
    case WireMessage::Malformed:
      if (++m_unreadable <= loggedUnreadable) {
        qCWarning(webhookLog) << "Dropped a message of the browser that cannot be read:" << text.left(loggedLength);
      }
      return;
    case WireMessage::Answer:
    case WireMessage::Refusal:
      return takeReply(message);
    case WireMessage::Event:
      return takeEvent(message);
  }
}

void Channel::takeReply(const WireMessage& message) {
  const auto found = m_open.find(message.id);
  if (found == m_open.end()) {
    qCDebug(webhookLog) << "Dropped an answer that nobody waits for:" << message.id;
    return;
  }
  const std::shared_ptr<Request> request = std::move(found->second);
  m_open.erase(found);
  const Reply::Status status = message.kind == WireMessage::Answer ? Reply::Answered : Reply::Refused;
  end(*request, {status, message.content, message.error});
}

void Channel::takeEvent(const WireMessage& message) {
  const auto found = m_subscriptions.constFind(message.session);
  if (found == m_subscriptions.constEnd() || !found->receiver) {
    return;
  }
  const EventHandler handler = found->handler;
  handler(message.method, message.content);
}

void Channel::endAll(const QString& reason) {
  if (m_closed) {
    return;
  }
  m_closed = true;
  m_closeReason = reason;
  for (const auto& [id, request] : std::exchange(m_open, {})) {
    end(*request, {Reply::Lost, {}, reason});
  }
}

}  // namespace Corvex::Webhook
