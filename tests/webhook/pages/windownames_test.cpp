#include "webhook/pages/windownames.h"

#include <gtest/gtest.h>

#include "support/hookedbrowser.h"
#include "support/printing.h"

using namespace Corvex::Webhook;

TEST(WindowNamesTest, APageIsKnownByItsAddressAsItKnowsItself) {
  const char* const addresses[] = {
      "http://a.example/shop/list.html",
      "http://a.example/",
      "http://a.example/shop/",
      "http://a.example",
      "http://a.example/x.html?y=/z#w",
      "http://a.example/x.html#/",
      "file:///tmp/a%20b.html",
      "http://a.example/?q",
      "http://a.example/x.jsp;id=1/2",
      "http://a.example/a?b/",
      "about:blank",
      "",
      "data:text/html,<p>a/b?c",
  };
  TestSupport::HookedBrowser& browser = TestSupport::HookedBrowser::instance();
  browser.load(QString());
  for (const char* address : addresses) {
    EXPECT_EQ(pageOfAddress(address),
              browser.evaluate(QStringLiteral("__corvex__pageOfLocation('%1')").arg(QLatin1String(address))).toString())
        << address;
  }
}
