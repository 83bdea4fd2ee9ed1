#include "support/testbrowser.h"

#include "support/chromedriver.h"

namespace TestSupport {

namespace {

QString wanted() { return qEnvironmentVariable("CORVEX_TEST_BROWSER", QStringLiteral("chromium")); }

}  // namespace

Corvex::Webhook::SessionOptions testBrowser() {
  Corvex::Webhook::SessionOptions options;
  if (!isRemote()) {
    options.browser = wanted();
    return options;
  }
  static const ChromeDriver server;
  options.remoteUrl = server.url();
  options.capabilities = chromeCapabilities();
  return options;
}

bool isFirefox() { return wanted() == QLatin1String("firefox"); }

bool isRemote() { return wanted() == QLatin1String("remote"); }

QString inBrowser(const char* chromium, const char* firefox) {
  return QString::fromUtf8(isFirefox() ? firefox : chromium);
}

}  // namespace TestSupport
