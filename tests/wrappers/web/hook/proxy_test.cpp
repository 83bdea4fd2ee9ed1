// Proxy mode: messages and the long poll go to the page's own origin, here a server of the test.

#include <gtest/gtest.h>

#include "support/hookedbrowser.h"
#include "support/printing.h"

namespace {

using TestSupport::HookedBrowser;
using TestSupport::ServerPage;

const QString pollPath = QStringLiteral("/__corvex__waitForEval__/");

void setPollAnswer(HookedBrowser& browser, int status, const QByteArray& code, bool silent = false) {
  ServerPage answer;
  answer.body = code;
  answer.type = "text/plain";
  answer.status = status;
  answer.silent = silent;
  browser.server().add(pollPath, answer);
}

class ProxyMode : public testing::Test {
protected:
  void SetUp() override {
    m_browser.load(QString());
    m_browser.evaluate(QStringLiteral("window.__corvex__proxy = true"));
  }

  /// Asks the page until the expression is true; each question lets the server answer.
  bool becomesTrue(const QString& expression) {
    for (int attempt = 0; attempt < 2000; ++attempt) {
      if (m_browser.evaluate(expression) == QJsonValue(true)) {
        return true;
      }
    }
    return false;
  }

  HookedBrowser& m_browser = HookedBrowser::instance();
};

TEST_F(ProxyMode, MessagesTakeTheWayThroughThePagesOwnOrigin) {
  const QString path =
      m_browser.evaluate(QStringLiteral("'/__corvex_webhook__/127.0.0.1%3A' + __corvex__port + '/?debuglog=hello'"))
          .toString();
  m_browser.evaluate(
      QStringLiteral("(window.told = __corvex__sendXMLHttpRequest(document, 'debuglog=hello', true), 0)"));
  EXPECT_TRUE(becomesTrue(QStringLiteral("window.told.readyState === 4")));
  EXPECT_TRUE(m_browser.server().requests().contains(path)) << qPrintable(path);
}

TEST_F(ProxyMode, TheLongPollEvaluatesWhatItGetsAndGoesOnBehindAnError) {
  setPollAnswer(m_browser, 500, "window.fromError = true");
  const int before = m_browser.server().requests().count(pollPath);
  m_browser.evaluate(QStringLiteral("(__corvex__asyncWaitForWebhookMsg(), 0)"));
  while (m_browser.server().requests().count(pollPath) < before + 2) {
    ASSERT_TRUE(m_browser.evaluate(QStringLiteral("1")).isDouble());
  }
  EXPECT_EQ(m_browser.evaluate(QStringLiteral("typeof window.fromError")), QJsonValue(QStringLiteral("undefined")));

  setPollAnswer(m_browser, 200, "window.fromWebhook = document.nodeType === 9");
  EXPECT_TRUE(becomesTrue(QStringLiteral("window.fromWebhook === true")));

  setPollAnswer(m_browser, 200, "", true);
  m_browser.evaluate(
      QStringLiteral("(__corvex__asyncWaitRequest.startAgain = false, __corvex__asyncWaitRequest.request && "
                     "__corvex__asyncWaitRequest.request.abort(), 0)"));
}

}  // namespace
