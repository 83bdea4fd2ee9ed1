#include "webhook/protocol/transport/websockettransport.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <QAbstractSocket>
#include <QPointer>
#include <QWebSocket>

#include "shared/wait.h"

namespace Corvex::Webhook {

namespace {

constexpr int handshakeLimit = 64 * 1024;

bool isWebSocket(const QUrl& url) {
  const bool fits = url.scheme() == QLatin1String("ws") || url.scheme() == QLatin1String("wss");
  return fits && url.isValid() && !url.host().isEmpty() && url.port() != 0;
}

}  // namespace

WebSocketTransport::WebSocketTransport() : m_socket(new QWebSocket) {
  m_socket->setMaxAllowedIncomingFrameSize(messageLimit);
  m_socket->setMaxAllowedIncomingMessageSize(messageLimit);
  connect(m_socket, &QWebSocket::textMessageReceived, this, [this](const QString& text) {
    acknowledgeAtOnce();
    // The socket reads its next frame only after this returns, so no receiver may run, and perhaps wait, in here.
    enqueue(text.toUtf8());
    QMetaObject::invokeMethod(this, &WebSocketTransport::deliver, Qt::QueuedConnection);
  });
}

WebSocketTransport::~WebSocketTransport() {
  m_socket->disconnect(this);
  m_socket->close();
  m_socket->deleteLater();
}

QString WebSocketTransport::open(const QUrl& url, const QDeadlineTimer& deadline) {
  if (!isWebSocket(url)) {
    return QStringLiteral("it is no WebSocket address such as ws://127.0.0.1:9222/devtools/browser/1234");
  }
  auto settled = std::make_shared<Pending>();
  connect(m_socket, &QWebSocket::connected, this, [this, settled] {
    m_socket->setReadBufferSize(0);  // a frame has to fit in
    settled->complete();
  });
  connect(m_socket, &QWebSocket::disconnected, this, [this, settled] {
    settled->complete();
    noteClosed(reasonOfEnd());
    QMetaObject::invokeMethod(this, &WebSocketTransport::deliver, Qt::QueuedConnection);
  });
  const QPointer<WebSocketTransport> self(this);
  m_socket->open(url);
  m_socket->setReadBufferSize(handshakeLimit);
  const WaitResult result = waitFor(*settled, deadline);
  if (!self || result == WaitResult::Interrupted) {
    return QStringLiteral("the program is ending");
  }
  if (m_socket->isValid()) {
    return {};
  }
  return result == WaitResult::TimeOver ? QStringLiteral("there was no answer in time") : reasonOfEnd();
}

void WebSocketTransport::acknowledgeAtOnce() {
  const auto* const socket = m_socket->findChild<QAbstractSocket*>();
  const int on = 1;
  if (socket) {
    // It lasts for a few messages only.
    ::setsockopt(int(socket->socketDescriptor()), IPPROTO_TCP, TCP_QUICKACK, &on, sizeof on);
  }
}

void WebSocketTransport::send(const QByteArray& message) {
  if (m_socket->isValid()) {
    m_socket->sendTextMessage(QString::fromUtf8(message));
  }
}

void WebSocketTransport::close() {
  m_socket->disconnect(this);
  m_socket->close();
  discardInbox();
}

QString WebSocketTransport::reasonOfEnd() const {
  if (m_socket->closeCode() == QWebSocketProtocol::CloseCodeTooMuchData) {
    return tooLong();
  }
  if (m_socket->error() == QAbstractSocket::UnknownSocketError) {
    return QStringLiteral("the connection was closed");
  }
  return m_socket->errorString();
}

}  // namespace Corvex::Webhook
