#pragma once

#include <memory>
#include <vector>

#include "webhook/backends/devtools/chromium.h"
#include "webhook/backends/devtools/devtoolspage.h"
#include "webhook/browser/browsersession.h"
#include "webhook/protocol/channel.h"

namespace Corvex::Webhook {

/// A browser driven over the DevTools protocol: one that was started, over its pipe, or one that runs, over a
/// WebSocket.
class DevToolsSession : public BrowserSession {
  Q_OBJECT

public:
  static Start start(const SessionOptions& options);

  ~DevToolsSession() override;

  BrowserPage* firstPage() const override;
  QVector<BrowserPage*> pages() const override;
  FunctionCallResult<BrowserPage*> newPage() override;
  QString addStartScriptOfNewPages(const QString& text) override;
  void close() override;
  bool isLost() const override { return m_ended; }
  QString browserName() const override { return m_name; }
  QString browserVersion() const override { return m_version; }
  Capabilities capabilities() const override;
  qint64 browserProcess() const override;
  QString browserDirectory() const override;

private:
  DevToolsSession(Chromium::Instance browser, std::unique_ptr<Transport> transport);

  /// Waits until the first page is there. Gives the error, or "".
  QString open(const QDeadlineTimer& deadline);
  void takeVersion(const Reply& reply);

  void takeEvent(const QString& method, const QJsonObject& parameters);
  void onAttached(const QJsonObject& parameters);
  void onDetached(const QJsonObject& parameters);
  bool isOurs(const DevTools::Target& target) const;

  void lose(const QString& reason);
  void endBrowser();

  Chromium::Instance m_browser;  ///< Empty for a visited browser.
  Channel m_channel;
  std::vector<std::unique_ptr<DevToolsPage>> m_pages;  ///< Closed ones included: callers may still hold them.
  std::shared_ptr<Pending> m_firstPageOpened = std::make_shared<Pending>();
  QStringList m_startScripts;  ///< Of pages that open from now on.
  int m_pagesToCome = 0;
  QString m_name;
  QString m_version;
  QString m_lastWords;
  bool m_ended = false;
};

}  // namespace Corvex::Webhook
