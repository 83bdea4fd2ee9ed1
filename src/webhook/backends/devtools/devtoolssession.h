#pragma once

#include <QHash>

#include "webhook/backends/devtools/devtoolspage.h"
#include "webhook/browser/protocolsession.h"

namespace Corvex::Webhook {

/// A browser driven over the DevTools protocol: one that was started, over its pipe, or one that runs, over a
/// WebSocket.
class DevToolsSession : public ProtocolSession {
  Q_OBJECT

public:
  static Start startChromium(const SessionOptions& options);
  static Start attach(const SessionOptions& options);

  ~DevToolsSession() override { finish(); }

  FunctionCallResult<BrowserPage*> newPage() override;
  void setCredentials(const QVector<Credentials>& credentials) override;
  QString addStartScriptOfNewPages(const QString& text) override;

private:
  DevToolsSession(std::unique_ptr<OwnedBrowser> browser, std::unique_ptr<Transport> transport);

  static Start open(const SessionOptions& options, std::unique_ptr<OwnedBrowser> browser,
                    std::unique_ptr<Transport> transport, const QDeadlineTimer& deadline);
  /// Waits until the first page is there. Gives the error, or "".
  QString open(const QDeadlineTimer& deadline);

  void prepareClosing() override;
  void takeEvent(const QString& method, const QJsonObject& parameters) override;
  void onAttached(const QJsonObject& parameters);
  void onDetached(const QJsonObject& parameters);
  bool isOurs(const DevTools::Target& target) const;

  QHash<QString, DevToolsPage*> m_pageOfTarget;
  QHash<QString, DevToolsPage*> m_pageOfSession;
  QStringList m_startScripts;  ///< Of pages that open from now on.
  bool m_ignoresCertificateErrors = false;
  int m_pagesToCome = 0;
};

}  // namespace Corvex::Webhook
