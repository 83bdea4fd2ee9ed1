// What the two protocols say of consoles and cookies reads alike.

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

#include "support/printing.h"
#include "webhook/protocol/bidi/bidiconsole.h"
#include "webhook/protocol/bidi/bidicookies.h"
#include "webhook/protocol/devtools/devtoolsconsole.h"
#include "webhook/protocol/devtools/devtoolscookies.h"

using namespace Corvex::Webhook;

namespace {

QJsonObject object(const char* json) { return QJsonDocument::fromJson(json).object(); }

QString shown(const std::optional<ConsoleMessage>& message) {
  return message ? QStringLiteral("%1|%2|%3:%4|%5")
                       .arg(message->level, message->text, message->url, QString::number(message->line),
                            message->isUncaught ? QStringLiteral("uncaught") : QString())
                 : QString();
}

const char* const logEntry = "log.entryAdded";

const char* const consoleOfDevTools =
    R"({"type":"warning","args":[{"type":"string","value":"a"},
                  {"type":"number","value":1.5,"description":"1.5"},{"type":"boolean","value":true},
                  {"type":"object","subtype":"null","value":null},{"type":"undefined"},
                  {"type":"object","className":"Object","description":"Object"},
                  {"type":"object","subtype":"array","description":"Array"},
                  {"type":"number","unserializableValue":"NaN","description":"NaN"}],
                  "stackTrace":{"callFrames":[{"url":"http://p/","lineNumber":5}]}})";

const char* const consoleOfBidi =
    R"({"type":"console","method":"warn","level":"warn","args":[{"type":"string","value":"a"},
                  {"type":"number","value":1.5},{"type":"boolean","value":true},{"type":"null"},{"type":"undefined"},
                  {"type":"object"},{"type":"array"},{"type":"number","value":"NaN"}],
                  "stackTrace":{"callFrames":[{"url":"http://p/","lineNumber":5}]}})";

const char* const exceptionOfDevTools =
    R"({"exceptionDetails":{"text":"Uncaught","url":"http://p/","lineNumber":2,"exception":
                  {"type":"object","subtype":"error","description":"Error: boom\n    at x"}}})";

const char* const exceptionOfBidi =
    R"({"type":"javascript","level":"error",
                  "text":"uncaught exception: boom"})";

const char* const policyOfBidi =
    R"({"type":"javascript","level":"error",
                  "text":"Cross-Origin Request Blocked: no"})";

const char* const cookiesOfDevTools =
    R"({"cookies":[{"name":"a","value":"v","domain":"h","path":"/","httpOnly":true,
      "sameSite":"Lax","expires":4000000000.5},{"name":"b","value":"","domain":"h","path":"/","expires":-1}]})";

const char* const cookiesOfBidi =
    R"({"cookies":[{"name":"a","value":{"type":"base64","value":"dg=="},"domain":"h",
      "path":"/","httpOnly":true,"sameSite":"lax","expiry":4000000000},
      {"name":"b","value":{"type":"string","value":""},"domain":"h","path":"/","sameSite":"default"}]})";

}  // namespace

TEST(PageState, ConsoleArgumentsReadAlike) {
  const QString expected = QStringLiteral("warn|a 1.5 true null undefined object array NaN|http://p/:6|");
  EXPECT_EQ(shown(DevTools::readConsoleMessage(QStringLiteral("Runtime.consoleAPICalled"), object(consoleOfDevTools))),
            expected);
  EXPECT_EQ(shown(Bidi::readConsoleMessage(QLatin1String(logEntry), object(consoleOfBidi))), expected);
}

TEST(PageState, OnlyUncaughtErrorsCountAsSuch) {
  EXPECT_EQ(shown(DevTools::readConsoleMessage(QStringLiteral("Runtime.exceptionThrown"), object(exceptionOfDevTools))),
            QStringLiteral("error|Error: boom|http://p/:3|uncaught"));
  EXPECT_EQ(shown(Bidi::readConsoleMessage(QLatin1String(logEntry), object(exceptionOfBidi))),
            QStringLiteral("error|boom|:0|uncaught"));
  EXPECT_EQ(shown(Bidi::readConsoleMessage(QLatin1String(logEntry), object(policyOfBidi))),
            QStringLiteral("error|Cross-Origin Request Blocked: no|:0|"));
  EXPECT_EQ(shown(DevTools::readConsoleMessage(QStringLiteral("Page.frameNavigated"), {})), QString());
  EXPECT_EQ(shown(Bidi::readConsoleMessage(QStringLiteral("browsingContext.load"), {})), QString());
}

TEST(PageState, CookiesReadAlike) {
  const auto check = [](const QVector<Cookie>& cookies) {
    ASSERT_EQ(cookies.size(), 2);
    EXPECT_EQ(cookies[0].value, QStringLiteral("v"));
    EXPECT_EQ(cookies[0].sameSite, QStringLiteral("lax"));
    EXPECT_EQ(cookies[0].expires, std::optional<qint64>(4000000000));
    EXPECT_TRUE(cookies[0].httpOnly);
    EXPECT_EQ(cookies[1].expires, std::nullopt);
    EXPECT_EQ(cookies[1].sameSite, QString());
  };
  check(DevTools::readCookies(object(cookiesOfDevTools)));
  check(Bidi::readCookies(object(cookiesOfBidi)));
}
