// Starts a browser, says where, and goes the way that its argument names: it exits as soon as it is told to by a line,
// prints until nobody reads, or is stuck.

#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>

#include "support/testbrowser.h"
#include "webhook/process/cleanup.h"

int main(int argc, char** argv) {
  Corvex::Webhook::Cleanup::install();
  QCoreApplication application(argc, argv);
  const QString way = application.arguments().value(1);
  using Corvex::Webhook::BrowserSession;
  auto* const start = new BrowserSession::Start(BrowserSession::start(TestSupport::testBrowser()));
  if (!start->value) {
    return 3;
  }
  std::printf("%lld %s\n", start->value->browserProcess(), start->value->browserDirectory().toUtf8().constData());
  std::fflush(stdout);
  if (way == QLatin1String("exit")) {
    std::getchar();
    std::exit(7);
  }
  if (way == QLatin1String("print")) {
    while (std::puts("more") >= 0 && std::fflush(stdout) == 0) {
    }
    std::exit(8);
  }
  volatile bool stuck = true;
  while (stuck) {
  }
}
