#include "webhook/protocol/devtools/devtools.h"

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <cmath>
#include <limits>

#include "support/printing.h"
#include "webhook/protocol/jstext.h"

using namespace Corvex::Webhook;

TEST(JsText, WritesNumbersAsStringDoes) {
  struct Row {
    double number;
    const char* text;
  };
  const Row rows[] = {
      {0, "0"},
      {-0.0, "0"},
      {1, "1"},
      {-17.5, "-17.5"},
      {0.1 + 0.2, "0.30000000000000004"},
      {1e20, "100000000000000000000"},
      {123456789012345680000., "123456789012345680000"},
      {1e21, "1e+21"},
      {-1.5e300, "-1.5e+300"},
      {0.000001, "0.000001"},
      {0.0000001, "1e-7"},
      {1.25e-7, "1.25e-7"},
      {9007199254740993., "9007199254740992"},
      {5e-324, "5e-324"},
      {1.7976931348623157e308, "1.7976931348623157e+308"},
      {std::nan(""), "NaN"},
      {-std::numeric_limits<double>::infinity(), "-Infinity"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(jsNumberText(row.number), QString::fromLatin1(row.text));
  }
}

TEST(DevTools, TakesTheTextOfAPrimitiveFromItsAnswer) {
  struct Row {
    const char* answer;
    const char* text;
    bool thrown;
    const char* handle;
  };
  const Row rows[] = {
      {R"({"result":{"type":"string","value":"a\u0000b"}})", "a", false, ""},
      {R"({"result":{"type":"undefined"}})", "undefined", false, ""},
      {R"({"result":{"type":"object","subtype":"null","value":null}})", "null", false, ""},
      {R"({"result":{"type":"number","unserializableValue":"-0"}})", "0", false, ""},
      {R"({"result":{"type":"number","unserializableValue":"-Infinity"}})", "-Infinity", false, ""},
      {R"({"result":{"type":"bigint","unserializableValue":"-12n"}})", "-12", false, ""},
      {R"js({"result":{"type":"symbol","description":"Symbol(n)","objectId":"7"}})js", "Symbol(n)", false, ""},
      {R"({"result":{"type":"object","description":"Object","objectId":"7"}})", "Object", false, "7"},
      {R"({"result":{"type":"number","value":5},"exceptionDetails":{"text":"Uncaught",
           "exception":{"type":"number","value":6}}})",
       "6", true, ""},
      {R"({"result":{"type":"undefined"},"exceptionDetails":{"text":"Uncaught"}})", "Uncaught", true, ""},
  };
  for (const Row& row : rows) {
    const DevTools::Outcome outcome = DevTools::readOutcome(QJsonDocument::fromJson(row.answer).object());
    EXPECT_STREQ(outcome.text.toUtf8().constData(), row.text) << row.answer;
    EXPECT_EQ(outcome.thrown, row.thrown) << row.answer;
    EXPECT_EQ(outcome.handle, QString::fromLatin1(row.handle)) << row.answer;
  }
}
