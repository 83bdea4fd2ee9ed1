// The short cuts of visibility, matching and search give what the plain road gives, on a page of oddities.

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include "support/hookedbrowser.h"

namespace {

using TestSupport::HookedBrowser;

QString fileText(const char* name) {
  QFile file(TestSupport::testFile(QLatin1String("wrappers/web/hook/") + QLatin1String(name)));
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

class PlainRoad : public testing::Test {
protected:
  static void SetUpTestSuite() {
    HookedBrowser& browser = HookedBrowser::instance();
    browser.load(fileText("oddities.html"));
    browser.evaluate(QStringLiteral("(function () { %1; return true; })()").arg(fileText("plainroad.js")));
    ASSERT_GT(browser.evaluate(QStringLiteral("plainRoad.prepare()")).toInt(), 90);
  }

  static std::string differences(const char* comparison) {
    const QJsonValue found = HookedBrowser::instance().evaluate(QStringLiteral("plainRoad.%1()").arg(comparison));
    return found.isArray() ? QJsonDocument(found.toArray()).toJson(QJsonDocument::Compact).toStdString()
                           : found.toString().toStdString();
  }
};

TEST_F(PlainRoad, VisibilityIsThatOfTheStyles) {
  EXPECT_EQ(differences("visibility"), "[]");
  EXPECT_GT(HookedBrowser::instance().evaluate(QStringLiteral("plainRoad.surelyVisible()")).toInt(), 30);
}

TEST_F(PlainRoad, ValuesMatchAsTheStepsSay) { EXPECT_EQ(differences("values"), "[]"); }

TEST_F(PlainRoad, SearchesAcceptAndReportTheSame) { EXPECT_EQ(differences("searches"), "[]"); }

}  // namespace
