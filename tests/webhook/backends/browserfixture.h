#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "shared/awaiting.h"
#include "support/printing.h"
#include "support/testbrowser.h"
#include "support/testserver.h"
#include "webhook/browser/browsersession.h"

/// One browser and one server for all tests of a program; each test begins with an empty page.
class BrowserTest : public testing::Test {
public:
  static void SetUpTestSuite() {
    if (session) {
      return;
    }
    testing::AddGlobalTestEnvironment(new Closing);
    server = std::make_unique<TestSupport::TestServer>();
    Corvex::Webhook::BrowserSession::Start start = Corvex::Webhook::BrowserSession::start(TestSupport::testBrowser());
    ASSERT_TRUE(start.value) << start.error.toStdString();
    session = std::move(start.value);
  }

protected:
  /// Ends the browser as long as the program's event loop can run.
  class Closing : public testing::Environment {
  public:
    void TearDown() override { session.reset(); }
  };

  void SetUp() override {
    page = session->firstPage();
    ASSERT_EQ(load("<title>Empty</title>"), QString());
  }

  /// Another browser, which the test may lose.
  static Corvex::Webhook::BrowserSession::Start startAnother() {
    return Corvex::Webhook::BrowserSession::start(TestSupport::testBrowser());
  }

  /// Loads a page with this content from the server, with these headers.
  static QString load(const QByteArray& body, const QList<QPair<QByteArray, QByteArray>>& headers = {}) {
    server->add(QStringLiteral("/page.html"), {body, "text/html; charset=utf-8", headers});
    return session->firstPage()->navigate(server->url(QStringLiteral("/page.html")));
  }

  QString text(const char* code) { return page->evaluate(QString::fromUtf8(code)).text; }

  Corvex::Webhook::BrowserPage* page = nullptr;
  static inline std::unique_ptr<Corvex::Webhook::BrowserSession> session;
  static inline std::unique_ptr<TestSupport::TestServer> server;
};
