#pragma once

#include <QDeadlineTimer>
#include <QUrl>
#include <memory>

#include "webhook/protocol/transport/transport.h"

class QWebSocket;

namespace Corvex::Webhook {

/// Messages as texts of a WebSocket to a browser that is already running.
class WebSocketTransport : public Transport {
  Q_OBJECT

public:
  WebSocketTransport();
  ~WebSocketTransport() override;

  /// Connects, waiting until `deadline` at the most. Gives the reason of a failure, or "". What is no WebSocket address
  /// fails at once.
  QString open(const QUrl& url, const QDeadlineTimer& deadline);

  void send(const QByteArray& message) override;
  void close() override;

private:
  /// Some browsers hold a message back until the one before is acknowledged, which the system delays by 40 ms.
  void acknowledgeAtOnce();
  QString reasonOfEnd() const;

  QWebSocket* m_socket;
};

}  // namespace Corvex::Webhook
