// What keeps code that holds references from running in a document that they do not come from.

#include <gtest/gtest.h>

#include "support/hookedbrowser.h"
#include "support/printing.h"
#include "webhook/browser/pageerrors.h"
#include "webhook/pages/connection.h"

using namespace Corvex::Webhook;

namespace {

class Guard : public testing::Test {
protected:
  void SetUp() override { browser.load(QStringLiteral("<p>page</p>")); }
  Corvex::JavaScriptAnswer ask(const char* code) { return browser.connection().evaluateJS(QLatin1String(code), 5000); }

  TestSupport::HookedBrowser& browser = TestSupport::HookedBrowser::instance();
};

}  // namespace

TEST_F(Guard, RunsNothingInADocumentThatTookThePlaceOfAnother) {
  EXPECT_EQ(ask("window.ran = 1").text, QString("1"));
  // As if the browser had yet to tell that another document is there.
  for (const char* other : {"__corvex.documentNumber = 0", "window.__corvex = undefined"}) {
    ask(other);
    const Corvex::JavaScriptAnswer answer = ask("window.ran = 2; stolen = document.cookie");
    EXPECT_TRUE(answer.failed && answer.text.contains(PageErrors::pageReplaced())) << answer.text.toStdString();
    EXPECT_EQ(browser.connection().evaluateInAnyDocument(QStringLiteral("String(window.ran)"), 5000).text,
              QString("1"));
    EXPECT_EQ(ask("typeof stolen").text, QString("undefined"));
  }
}

TEST_F(Guard, GivesTheCodeAJsonThatThePageCannotReplace) {
  ask("window.JSON = { stringify: function () { return '{\"result\": \"forged\"}'; } }");
  EXPECT_EQ(ask("JSON.stringify({ result: 1 })").text, QString("{\"result\":1}"));
  EXPECT_EQ(ask("var atTop = 5; function later() {} let own = 6; own").text, QString("6"));
  EXPECT_EQ(ask("atTop + typeof later").text, QString("5function"));
}
