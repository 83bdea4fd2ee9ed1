#include "webhook/backends/bidi/webdriver.h"

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QTemporaryDir>

#include "support/files.h"
#include "support/printing.h"
#include "support/testserver.h"
#include "webhook/browser/browsersession.h"

using namespace Corvex;
using namespace Corvex::Webhook;

namespace {

SessionOptions wishing(const QString& capabilities) {
  SessionOptions options;
  options.capabilities = capabilities;
  return options;
}

QString q(const char* text) { return QString::fromUtf8(text); }

QString errorFrom(const QString& url, const QString& capabilities = {}) {
  SessionOptions options;
  options.remoteUrl = url;
  options.capabilities = capabilities;
  const BrowserSession::Start start = BrowserSession::start(options);
  EXPECT_FALSE(start.value);
  return start.error;
}

TestSupport::ServerPage json(const char* body, int status = 200) { return {body, "application/json", {}, status}; }

}  // namespace

TEST(WebDriver, AddsWhatIsNeededToTheWishes) {
  struct Row {
    const char* wish;
    const char* browser;
    const char* result;
  };
  const Row rows[] = {
      {"", "", R"({"alwaysMatch":{"unhandledPromptBehavior":{"default":"ignore"},"webSocketUrl":true}})"},
      {R"({"a":1,"webSocketUrl":false})", "firefox",
       R"({"alwaysMatch":{"a":1,"browserName":"firefox","unhandledPromptBehavior":{"default":"ignore"},
           "webSocketUrl":true}})"},
      {R"({"browserName":"chrome"})", "firefox",
       R"({"alwaysMatch":{"browserName":"chrome","unhandledPromptBehavior":{"default":"ignore"},
           "webSocketUrl":true}})"},
      {R"({"capabilities":{"firstMatch":[{"b":2},{}]}})", "firefox",
       R"({"alwaysMatch":{"unhandledPromptBehavior":{"default":"ignore"},"webSocketUrl":true},
           "firstMatch":[{"b":2},{}]})"},
  };
  for (const Row& row : rows) {
    const WantedCapabilities wanted = wantedCapabilities(wishing(q(row.wish)), q(row.browser));
    EXPECT_EQ(wanted.error, QString()) << row.wish;
    EXPECT_EQ(wanted.capabilities, QJsonDocument::fromJson(row.result).object()) << row.wish;
  }
}

TEST(WebDriver, TakesTheWishesFromAFile) {
  const QTemporaryDir directory;
  const QString path = directory.filePath(q("wish.json"));
  ASSERT_TRUE(TestSupport::writeFile(path, R"({"a": 1})"));
  const WantedCapabilities wanted = wantedCapabilities(wishing(QLatin1Char('@') + path), {});
  EXPECT_EQ(wanted.capabilities.value(q("alwaysMatch")).toObject().value(q("a")).toInt(), 1);
  EXPECT_EQ(wantedCapabilities(wishing(q("@/no/such")), {}).error,
            q("The capabilities cannot be used: the file '/no/such' cannot be read: No such file or directory. Give a "
              "JSON object, or @ and the "
              "path of a file of one."));
  EXPECT_TRUE(errorFrom(q("http://127.0.0.1:4"), q("{a")).startsWith(q("The capabilities cannot be used: ")));
  EXPECT_TRUE(errorFrom(q("http://127.0.0.1:4"), q("[1]")).contains(q("the JSON is no object")));
}

TEST(WebDriver, AServerWithoutWebSocketIsToldAndItsSessionEnded) {
  TestSupport::TestServer server;
  server.add(q("/hub/session"), json(R"({"value":{"sessionId":"s1","capabilities":{"browserName":"old"}}})"));
  server.add(q("/hub/session/s1"), json(R"({"value":null})"));
  EXPECT_EQ(errorFrom(server.url(q("/hub"))),
            QStringLiteral("The server at '%1' offers no webSocketUrl, so its browser cannot be driven. Use a server "
                           "and a browser that support WebDriver BiDi.")
                .arg(server.url(q("/hub"))));
  EXPECT_EQ(server.requests(), QStringList({q("/hub/session"), q("/hub/session/s1")}));
}

TEST(WebDriver, SaysWhyThereIsNoSession) {
  TestSupport::TestServer server;
  server.add(q("/full/session"), json(R"({"value":{"error":"session not created","message":"no room\nat x"}})", 500));
  server.add(q("/page/session"), {"<h1>Hello</h1>"});
  struct Row {
    QString url;
    const char* why;
  };
  const Row rows[] = {
      {server.url(q("/full")), "no room at x."},
      {server.url(q("/page")), "its answer names no session."},
      {server.url(q("/none")), "it answered with HTTP status 404."},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(errorFrom(row.url), QStringLiteral("The server at '%1' opened no browser: %2 Check the address, that a "
                                                 "WebDriver server runs there, and the capabilities.")
                                      .arg(row.url, q(row.why)));
  }
  EXPECT_TRUE(
      errorFrom(q("http://127.0.0.1:4")).startsWith(q("The server at 'http://127.0.0.1:4' opened no browser: ")));
  EXPECT_EQ(errorFrom(q("127.0.0.1:4444")),
            q("'127.0.0.1:4444' is no address of a WebDriver server. Give it as http://host:port."));
}

TEST(WebDriver, AWebSocketThatCannotBeReachedIsNamedAndTheSessionEnded) {
  TestSupport::TestServer server;
  server.add(q("/session"),
             json(R"({"value":{"sessionId":"s1","capabilities":{"webSocketUrl":"ws://127.0.0.1:4/session/s1"}}})"));
  server.add(q("/session/s1"), json(R"({"value":null})"));
  EXPECT_TRUE(errorFrom(server.url(QString()))
                  .startsWith(q("The browser at 'ws://127.0.0.1:4/session/s1' cannot be reached: ")));
  EXPECT_TRUE(server.requests().contains(q("/session/s1")));
}
