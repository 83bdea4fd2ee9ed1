// The XPath evaluator of the hook script against the browser's own.

#include <gtest/gtest.h>

#include <QJsonArray>

#include "support/files.h"
#include "support/hookedbrowser.h"
#include "support/printing.h"

namespace {

using TestSupport::HookedBrowser;

QByteArray contents(const char* path) {
  return TestSupport::readFile(TestSupport::testFile(QString::fromLatin1(path)));
}

TEST(XPath, AgreesWithTheBrowser) {
  HookedBrowser& browser = HookedBrowser::instance();
  browser.server().add(QStringLiteral("/xpath.html"), {contents("pages/xpath.html")});
  ASSERT_EQ(browser.connection().navigate(browser.server().url(QStringLiteral("/xpath.html"))), QString());
  const QString grammar = QString::fromUtf8(contents("wrappers/web/hook/xpath_grammar.js"));
  const QJsonArray groups =
      browser.evaluate(QStringLiteral("(function () { %1\n; return xpathGrammar.groups; })()").arg(grammar)).toArray();
  ASSERT_FALSE(groups.isEmpty());
  for (const QJsonValue& group : groups) {
    const QString name = group.toArray().at(0).toString();
    EXPECT_GT(group.toArray().at(1).toInt(), 20) << name.toStdString();
    EXPECT_EQ(browser.evaluate(QStringLiteral("xpathGrammar.differences('%1')").arg(name)).toString(), QString())
        << name.toStdString();
  }
}

}  // namespace
