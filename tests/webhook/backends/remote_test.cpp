#include "support/chromedriver.h"
#include "webhook/backends/browserfixture.h"

using namespace Corvex;
using namespace Corvex::Webhook;

namespace {

QString q(const char* text) { return QString::fromUtf8(text); }

SessionOptions optionsFor(const TestSupport::ChromeDriver& server) {
  SessionOptions options;
  options.remoteUrl = server.url();
  options.capabilities = TestSupport::chromeCapabilities();
  return options;
}

}  // namespace

TEST(Remote, ASessionOfAServerIsDrivenAndEnded) {
  const TestSupport::ChromeDriver server;
  ASSERT_FALSE(server.url().isEmpty());
  SessionOptions options = optionsFor(server);
  options.remoteUrl += QLatin1Char('/');
  BrowserSession::Start start = BrowserSession::start(options);
  ASSERT_TRUE(start.value) << start.error.toStdString();
  EXPECT_EQ(start.value->firstPage()->evaluate(q("6 * 7")).text, q("42"));
  EXPECT_EQ(start.value->browserName(), q("chrome"));
  EXPECT_EQ(start.value->browserProcess(), 0);

  start.value->close();
  EXPECT_TRUE(start.value->firstPage()->evaluate(q("1")).aborted);
  start.value.reset();
  start = BrowserSession::start(optionsFor(server));
  EXPECT_TRUE(start.value) << start.error.toStdString();
}

TEST(Remote, AServerThatGoesLosesTheBrowser) {
  auto server = std::make_unique<TestSupport::ChromeDriver>();
  BrowserSession::Start start = BrowserSession::start(optionsFor(*server));
  ASSERT_TRUE(start.value) << start.error.toStdString();
  QMetaObject::invokeMethod(
      start.value.get(), [&] { server.reset(); }, Qt::QueuedConnection);
  const JavaScriptAnswer evaluation = start.value->firstPage()->evaluate(q("for (;;) {}"));
  EXPECT_TRUE(evaluation.aborted);
  EXPECT_TRUE(evaluation.text.startsWith(q("The browser was lost: "))) << evaluation.text.toStdString();
  EXPECT_TRUE(start.value->isLost());
}

TEST(Remote, TheServersComplaintIsPassedOn) {
  const TestSupport::ChromeDriver server;
  SessionOptions options = optionsFor(server);
  options.capabilities = q(R"({"goog:chromeOptions": {"binary": "/no/such/browser"}})");
  const BrowserSession::Start start = BrowserSession::start(options);
  EXPECT_FALSE(start.value);
  EXPECT_TRUE(start.error.contains(server.url())) << start.error.toStdString();
  EXPECT_TRUE(start.error.contains(q("/no/such/browser"))) << start.error.toStdString();
}
