// Runs the cases of each *_cases.js file; what a case is stands in hookkit.js.

#include <gtest/gtest.h>

#include <QDir>

#include "support/files.h"
#include "support/hookedbrowser.h"
#include "support/printing.h"

namespace {

using TestSupport::HookedBrowser;

const QString folder = QStringLiteral("wrappers/web/hook/");

std::vector<std::string> caseFiles() {
  std::vector<std::string> names;
  for (const QString& name : QDir(TestSupport::testFile(folder)).entryList({QStringLiteral("*_cases.js")})) {
    names.push_back(name.section(QLatin1Char('_'), 0, 0).toStdString());
  }
  return names;
}

class HookCases : public testing::TestWithParam<std::string> {
protected:
  static void evaluateFile(const QString& name) {
    const QString text = QString::fromUtf8(TestSupport::readFile(TestSupport::testFile(folder + name)));
    ASSERT_EQ(HookedBrowser::instance().evaluate(QStringLiteral("(function () { %1\n; return true; })()").arg(text)),
              QJsonValue(true))
        << name.toStdString();
  }
};

TEST_P(HookCases, GiveWhatIsExpected) {
  HookedBrowser& browser = HookedBrowser::instance();
  browser.load(QString());
  evaluateFile(QStringLiteral("hookkit.js"));
  evaluateFile(QString::fromStdString(GetParam()) + QStringLiteral("_cases.js"));
  const int count = browser.evaluate(QStringLiteral("hookCases.count()")).toInt();
  ASSERT_GT(count, 0);
  const QString name = qEnvironmentVariable("CORVEX_TEST_BROWSER", QStringLiteral("chromium"));
  for (int i = 0; i < count; ++i) {
    const QString fault = browser.evaluate(QStringLiteral("hookCases.run(%1, '%2')").arg(i).arg(name)).toString();
    EXPECT_TRUE(fault.isEmpty()) << qPrintable(fault);
  }
}

INSTANTIATE_TEST_SUITE_P(Page, HookCases, testing::ValuesIn(caseFiles()), [](const auto& file) { return file.param; });

}  // namespace
