// Dialogs of a browser whose protocol answers none: pages swallow alerts, and wait for the answer to the others.

#include "webhook/pages/dialogs.h"

#include <gtest/gtest.h>

#include "shared/wait.h"
#include "support/hookedbrowser.h"
#include "support/printing.h"
#include "webhook/pages/messagedispatcher.h"

using namespace Corvex::Webhook;

namespace {

class DialogsInPages : public testing::Test {
protected:
  void SetUp() override {
    browser.load(QStringLiteral("<p>page</p>"));
    // The script takes a Chromium's dialogs for answered.
    browser.evaluate(QStringLiteral("window.__corvex__chromiumbased = false"));
  }
  void run(const char* statement) {
    browser.evaluate(QStringLiteral("setTimeout(function () { answer = %1; }, 0)").arg(QLatin1String(statement)));
  }
  /// What the page got, as soon as it is that.
  QString answer(const char* expected) {
    QString got;
    Corvex::poll(5000, 20, [&] {
      got = browser.evaluate(QStringLiteral("String(answer)")).toString();
      return got == QLatin1String(expected);
    });
    return got;
  }

  TestSupport::HookedBrowser& browser = TestSupport::HookedBrowser::instance();
  Dialogs dialogs{browser.windows(), browser.endpoint()};
  MessageDispatcher dispatcher{browser.endpoint(), browser.windows(), dialogs};
};

}  // namespace

TEST_F(DialogsInPages, APageThatWaitsIsToldTheAnswer) {
  run("confirm('Sure?')");
  EXPECT_EQ(dialogs.closeAlert(1000),
            QString("No alert opened within 1000 ms. The page shows a dialog (confirm: 'Sure?'). Answer it with "
                    "closeConfirm."));
  EXPECT_EQ(dialogs.whyNotAskPage(browser.connection()),
            QString("The page shows a dialog (confirm: 'Sure?'). Answer it with closeConfirm."));
  EXPECT_EQ(dialogs.closeConfirm(true, 5000), QString());
  EXPECT_EQ(answer("true"), QString("true"));
  run("prompt('Name?', 'Ada')");
  EXPECT_EQ(dialogs.closePrompt("Grace & Co", 5000), QString());
  EXPECT_EQ(answer("Grace & Co"), QString("Grace & Co"));
  EXPECT_EQ(dialogs.lastText("prompt") + dialogs.lastPromptDefault(), QString("Name?Ada"));
  run("prompt('Name?')");
  EXPECT_EQ(dialogs.closePrompt(QString(), 5000), QString());
  EXPECT_EQ(answer("null"), QString("null"));
  EXPECT_EQ(dialogs.whyNotAskPage(browser.connection()), QString());
}

TEST_F(DialogsInPages, ASwallowedAlertIsGoneWithItsPage) {
  run("alert('One') || alert('Two') || 'shown'");
  EXPECT_EQ(dialogs.closeAlert(5000), QString());
  EXPECT_EQ(answer("shown"), QString("shown"));
  EXPECT_EQ(dialogs.lastText("alert"), QString("Two"));
  browser.load(QStringLiteral("<p>next</p>"));
  EXPECT_EQ(dialogs.closeAlert(100), QString("No alert opened within 100 ms."));
}
