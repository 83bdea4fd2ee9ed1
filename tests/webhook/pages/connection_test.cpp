#include "webhook/pages/connection.h"

#include <gtest/gtest.h>

#include "support/fakebrowserpage.h"
#include "support/printing.h"
#include "webhook/browser/pageerrors.h"
#include "webhook/pages/globaldeclarations.h"
#include "wrappers/web/setup/wrapperconfig.h"

using namespace Corvex;
using namespace Corvex::Webhook;

namespace {

class ConnectionTest : public testing::Test {
protected:
  QString codeWith(const char* part) const { return page.codes.filter(QLatin1String(part)).join(QLatin1Char('\n')); }

  TestSupport::FakeBrowserPage page;
  const WebWrapper::MemoryBasedConfig config;
  Connection connection{&page, &config, BrowserIdentity(), QStringLiteral("tab")};
};

}  // namespace

TEST_F(ConnectionTest, CodeRunsInTheDocumentThatItsReferencesComeFrom) {
  connection.evaluateJS(QStringLiteral("first"), 0);
  EXPECT_TRUE(codeWith("first").contains(QStringLiteral("documentNumber) !== \"1\"")));
  Q_EMIT page.navigated(QString());
  connection.evaluateJS(QStringLiteral("%1 second %2"), 0);
  EXPECT_TRUE(codeWith("%1 second %2").contains(QStringLiteral("documentNumber) !== \"2\"")));
}

TEST_F(ConnectionTest, CodeWithoutReferencesIsAskedOfTheNextDocument) {
  int refusals = 1;
  page.answer = [&](const QString& code) {
    const bool refused = code.contains(QStringLiteral("look")) && refusals-- > 0;
    return refused ? JavaScriptAnswer{QStringLiteral("Error: ") + PageErrors::pageReplaced(), true, false}
                   : JavaScriptAnswer{QStringLiteral("true"), false, false};
  };
  EXPECT_TRUE(connection.evaluateInAnyDocument(QStringLiteral("look"), 0).succeeded());
  refusals = 1;
  EXPECT_FALSE(connection.evaluateJS(QStringLiteral("look"), 0).succeeded());
  refusals = 10;
  EXPECT_FALSE(connection.evaluateInAnyDocument(QStringLiteral("look"), 0).succeeded());
}

TEST_F(ConnectionTest, APageThatLeavesWhileItIsGreetedIsFollowedToTheNext) {
  int leaves = 1;
  page.answer = [&](const QString& code) {
    const bool isHook = code.contains(QStringLiteral("__corvex__findObject"));
    if (!isHook || leaves-- <= 0) {
      return JavaScriptAnswer{isHook || leaves < 0 ? QStringLiteral("true") : QStringLiteral("false"), false, false};
    }
    Q_EMIT page.navigated(QStringLiteral("http://x/next"));
    return JavaScriptAnswer{PageErrors::pageReplaced(), true, false};
  };
  EXPECT_EQ(connection.navigate(QStringLiteral("http://x/")), QString());
  leaves = 100;
  EXPECT_TRUE(connection.navigate(QStringLiteral("http://x/")).contains(PageErrors::pageReplaced()));
}

TEST(GlobalDeclarations, AreFoundAtTheTopLevelOnly) {
  const struct {
    const char* script;
    const char* result;
  } rows[] = {
      {"const A = 1, B = { let: 2 };\nlet c;\nclass D extends E { m() { const x = 1; } }\n(f)",
       "var A = 1, B = { let: 2 };\nvar c;\nvar D = class D extends E { m() { const x = 1; } };\n(f)"},
      {"if (x) { let y; } const z = `${(function () { const q = '}'; return `{`; })()}`; let w",
       "if (x) { let y; } var z = `${(function () { const q = '}'; return `{`; })()}`; var w"},
      {"// let a\n/* const b */ 'class c'; var d = /[/{]let/; const e = d / 2 / 1",
       "// let a\n/* const b */ 'class c'; var d = /[/{]let/; var e = d / 2 / 1"},
      {"x.class = 1; y = class Z {}; letter = constant", "x.class = 1; y = class Z {}; letter = constant"},
      {"var a = 1 // b\nconst c = n++ / 2;\nlet d = --n / 3 // {\nconst e =\nclass extends F {};\nlet g /*\n*/ let h",
       "var a = 1 // b\nvar c = n++ / 2;\nvar d = --n / 3 // {\nvar e =\nclass extends F {};\nvar g /*\n*/ var h"},
      {"let a = '", "var a = '"},
      {"}}} let", "}}} let"},
      {"`${", "`${"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(withGlobalDeclarations(QLatin1String(row.script)), QLatin1String(row.result));
  }
}
