// Pages of widget libraries, as people test them.

#include <gtest/gtest.h>

#include <QDeadlineTimer>

#include "support/hookedbrowser.h"
#include "support/printing.h"
#include "webhook/inspect/names.h"

namespace {

using namespace Corvex::Webhook;
using TestSupport::HookedBrowser;

struct WidgetPage {
  const char* file;
  int elements;  ///< So many at least, else the widgets are not there.
};

void PrintTo(const WidgetPage& page, std::ostream* out) { *out << page.file; }

class Widgets : public testing::TestWithParam<WidgetPage> {};

TEST_P(Widgets, AreFoundAgain) {
  HookedBrowser& browser = HookedBrowser::instance();
  browser.server().serveFolder(TestSupport::testFile(QStringLiteral("..")));
  const QString page = QStringLiteral("/tests/names/pages/%1.html").arg(QLatin1String(GetParam().file));
  ASSERT_EQ(browser.connection().navigate(browser.server().url(page)), QString());
  const QDeadlineTimer deadline(30000);
  while (browser.evaluate(QStringLiteral("document.documentElement.className")) != QStringLiteral("ready")) {
    ASSERT_FALSE(deadline.hasExpired()) << "The page did not get its widgets ready.";
  }
  const NamesCheck check = checkNames(browser.connection(), 0);
  ASSERT_EQ(check.error, QString());
  EXPECT_GT(check.elements.size(), GetParam().elements);
  for (const NamedElement& element : check.elements) {
    EXPECT_NE(element.outcome, NameOutcome::Lost)
        << qPrintable(element.element) << "\n  named " << qPrintable(element.name) << "\n  " << qPrintable(element.why);
  }
}

INSTANTIATE_TEST_SUITE_P(Names, Widgets,
                         testing::Values(WidgetPage{"desktop", 400}, WidgetPage{"grid", 500},
                                         WidgetPage{"components", 500}),
                         [](const auto& page) { return page.param.file; });

}  // namespace
