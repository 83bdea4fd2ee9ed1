#pragma once

#include <QJsonValue>
#include <QString>
#include <memory>

#include "support/testserver.h"
#include "webhook/browser/browsersession.h"
#include "webhook/endpoint/endpoint.h"
#include "webhook/pages/browserwindows.h"
#include "webhook/pages/webmodel.h"
#include "wrappers/web/setup/wrapperconfig.h"

namespace TestSupport {

/// One browser with one hooked page, for a whole test program. Ends with the program's tests.
class HookedBrowser {
public:
  /// Starts it on the first call. A browser that cannot be started ends the program with a sentence.
  static HookedBrowser& instance();

  Corvex::Webhook::BrowserSession& session() { return *m_session; }
  Corvex::Webhook::Connection& connection() { return *m_windows->current(); }
  Corvex::Webhook::BrowserWindows& windows() { return *m_windows; }
  Corvex::Webhook::MessageEndpoint& endpoint() { return m_endpoint; }
  TestServer& server() { return m_server; }

  /// Loads a page with this body from the local server; the test fails when it cannot.
  void load(const QString& body);
  /// The value of a JavaScript expression; a failure comes back as a text that begins with "failed: ".
  QJsonValue evaluate(const QString& expression);

private:
  HookedBrowser();

  TestServer m_server;
  Corvex::Webhook::MessageEndpoint m_endpoint;
  Corvex::WebWrapper::MemoryBasedConfig m_config;
  std::unique_ptr<Corvex::Webhook::WebModel> m_model;
  std::unique_ptr<Corvex::Webhook::BrowserSession> m_session;
  std::unique_ptr<Corvex::Webhook::BrowserWindows> m_windows;
  int m_pages = 0;
};

/// The path of a file of the tests folder.
QString testFile(const QString& path);

}  // namespace TestSupport
