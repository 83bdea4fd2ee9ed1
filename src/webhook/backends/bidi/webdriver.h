#pragma once

#include <QDeadlineTimer>
#include <QJsonObject>
#include <QString>
#include <QUrl>
#include <memory>

#include "webhook/browser/browsersession.h"
#include "webhook/browser/ownedbrowser.h"

class QNetworkAccessManager;

namespace Corvex::Webhook {

/// A session of a browser that a WebDriver server keeps, on this machine or on another one.
class WebDriverSession : public OwnedBrowser {
  Q_OBJECT

public:
  struct Start {
    std::unique_ptr<WebDriverSession> session;
    QString error;  ///< Why there is none, and what to do.
  };

  /// Asks the server at `url` (http://host:port, with the path that its commands begin with) for a browser that
  /// `wantedCapabilities()` describes and that can be driven over a WebSocket.
  static Start create(const QString& url, const QJsonObject& capabilities, const QDeadlineTimer& deadline);

  ~WebDriverSession() override;

  QUrl webSocketUrl() const { return m_webSocketUrl; }
  /// What the browser is, in the server's words.
  const QJsonObject& capabilities() const { return m_capabilities; }

  /// Has the server end the browser, and waits for its answer.
  void end() override;

private:
  explicit WebDriverSession(const QString& url);

  QUrl m_url;
  QUrl m_webSocketUrl;
  QJsonObject m_capabilities;
  std::unique_ptr<QNetworkAccessManager> m_network;
  bool m_ended = false;
};

/// What a new session is asked for.
struct WantedCapabilities {
  QJsonObject capabilities;
  QString error;  ///< Why `text` cannot be used.
};

/// The options' capabilities are the user's wish, "" for none: JSON, or @ and the path of a file of JSON; either the
/// capabilities themselves or an object with "alwaysMatch" or "firstMatch". `browser` is the browser's name if none is
/// wished, "" for any. What this program and the other options need is added.
WantedCapabilities wantedCapabilities(const SessionOptions& options, const QString& browser);

}  // namespace Corvex::Webhook
