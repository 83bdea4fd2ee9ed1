// Each case of the *_cases.json files: a body is put into a hooked page, an expression is evaluated, its value
// compared.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include "support/hookedbrowser.h"

namespace {

using TestSupport::HookedBrowser;

struct HookCase {
  QString file;
  QJsonObject data;
};

std::vector<HookCase> allCases() {
  std::vector<HookCase> cases;
  const QDir folder(TestSupport::testFile(QStringLiteral("wrappers/web/hook")));
  for (const QString& name : folder.entryList({QStringLiteral("*_cases.json")}, QDir::Files, QDir::Name)) {
    QFile file(folder.filePath(name));
    if (file.open(QIODevice::ReadOnly)) {
      for (const QJsonValue& value : QJsonDocument::fromJson(file.readAll()).array()) {
        cases.push_back({name.section(QLatin1Char('_'), 0, 0), value.toObject()});
      }
    }
  }
  return cases;
}

std::string caseName(const testing::TestParamInfo<HookCase>& info) {
  QString name = info.param.data[QStringLiteral("name")].toString();
  name.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9]+")), QStringLiteral("_"));
  return QStringLiteral("%1_%2_%3").arg(info.param.file).arg(info.index).arg(name).toStdString();
}

std::string text(const QJsonValue& value) {
  return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).toStdString();
}

// What the configuration put into the page is taken away: a case sets what it is about.
const char* const plainPage = R"JS(
  (function () {
    ['__corvex__filter__non__element__nodes', '__corvex__throwErrorForUnknownContextName', '__corvex__namegen__scheme',
     '__corvex__namegen__singleprop', '__corvex__namegen__hierarchical'].forEach(function (name) { delete window[name]; });
    delete __corvex.includeIdPropertyInGeneratedNames;
    ['__corvex__lastAlertMessage', '__corvex__lastConfirmMessage', '__corvex__lastPromptMessage',
     '__corvex__lastPromptDefaultValue'].forEach(function (name) {
      Object.defineProperty(window, name, { value: '', writable: true, configurable: true });
    });
    window.scrollTo(0, 0);
    document.body.innerHTML = %1[0];
    return true;
  })()
)JS";

QString browserName() {
  const QString name = QString::fromLocal8Bit(qgetenv("CORVEX_TEST_BROWSER"));
  return name.isEmpty() ? QStringLiteral("chromium") : name;
}

class HookCases : public testing::TestWithParam<HookCase> {
protected:
  static void SetUpTestSuite() {
    HookedBrowser::instance().load(QString());
    QFile kit(TestSupport::testFile(QStringLiteral("wrappers/web/hook/hookkit.js")));
    ASSERT_TRUE(kit.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(kit.readAll());
    ASSERT_EQ(HookedBrowser::instance().evaluate(QStringLiteral("(function () { %1; return true; })()").arg(text)),
              true);
  }
};

TEST_P(HookCases, GivesTheExpectedValue) {
  HookedBrowser& browser = HookedBrowser::instance();
  const QJsonObject data = GetParam().data;
  const QString only = data[QStringLiteral("only")].toString();
  if (!only.isEmpty() && only != browserName()) {
    GTEST_SKIP() << qPrintable(data[QStringLiteral("why")].toString());
  }
  const QString body = data[QStringLiteral("page")].toString();
  const QString quoted = QString::fromUtf8(QJsonDocument(QJsonArray{body}).toJson(QJsonDocument::Compact));
  ASSERT_EQ(browser.evaluate(QString::fromUtf8(plainPage).arg(quoted)), true);
  EXPECT_EQ(text(browser.evaluate(data[QStringLiteral("code")].toString())), text(data[QStringLiteral("expect")]));
}

INSTANTIATE_TEST_SUITE_P(Page, HookCases, testing::ValuesIn(allCases()), caseName);

TEST(HookCaseFiles, AreThere) { EXPECT_GT(allCases().size(), 100U); }

}  // namespace
