#include "webhook/protocol/bidi.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

#include "support/printing.h"

using namespace Corvex::Webhook;

namespace {

QString q(const char* text) { return QString::fromUtf8(text); }

QJsonObject object(const char* json) { return QJsonDocument::fromJson(json).object(); }

}  // namespace

TEST(Bidi, TakesTheTextOfAPrimitiveFromItsAnswer) {
  struct Row {
    const char* answer;
    const char* text;
    bool thrown = false;
    const char* handle = "";
    const char* sharedId = "";
  };
  const Row rows[] = {
      {R"({"type":"success","result":{"type":"string","value":"a\u0000b"}})", "a"},
      {R"({"type":"success","result":{"type":"undefined"}})", "undefined"},
      {R"({"type":"success","result":{"type":"null"}})", "null"},
      {R"({"type":"success","result":{"type":"boolean","value":false}})", "false"},
      {R"({"type":"success","result":{"type":"number","value":1e21}})", "1e+21"},
      {R"({"type":"success","result":{"type":"number","value":"-0"}})", "0"},
      {R"({"type":"success","result":{"type":"number","value":"-Infinity"}})", "-Infinity"},
      {R"({"type":"success","result":{"type":"bigint","value":"-12"}})", "-12"},
      {R"({"type":"success","result":{"type":"object","handle":"7"}})", "", false, "7"},
      {R"({"type":"success","result":{"type":"node","handle":"7","sharedId":"s"}})", "", false, "7", "s"},
      {R"({"type":"exception","exceptionDetails":{"text":"6","exception":{"type":"number","value":6}}})", "6", true},
      {R"({"type":"exception","exceptionDetails":{"text":"TypeError: x","exception":{"type":"error","handle":"7"}}})",
       "TypeError: x", true, "7"},
  };
  for (const Row& row : rows) {
    const Bidi::Outcome outcome = Bidi::readOutcome(object(row.answer));
    EXPECT_STREQ(outcome.text.toUtf8().constData(), row.text) << row.answer;
    EXPECT_EQ(outcome.thrown, row.thrown) << row.answer;
    EXPECT_EQ(outcome.handle, q(row.handle)) << row.answer;
    EXPECT_EQ(outcome.sharedId, q(row.sharedId)) << row.answer;
  }
}

TEST(Bidi, ARefusalKeepsItsCodeUnlessThatSaysNothing) {
  struct Row {
    const char* refusal;
    const char* error;
  };
  const Row rows[] = {
      {R"({"type":"error","id":1,"error":"no such frame","message":"gone"})", "no such frame: gone"},
      {R"({"type":"error","id":1,"error":"no such alert","message":""})", "no such alert"},
      {R"({"type":"error","id":1,"error":"unknown error","message":"Error: NS_BINDING_ABORTED"})",
       "NS_BINDING_ABORTED"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Bidi::dialect().read(row.refusal).error, q(row.error));
  }
}

TEST(Bidi, EventsBelongToTheirPageAndThoseOfItsLifeToTheBrowser) {
  const Dialect& dialect = Bidi::dialect();
  EXPECT_EQ(dialect.read(R"({"type":"event","method":"browsingContext.load","params":{"context":"c"}})").session,
            q("c"));
  for (const char* name : {"contextCreated", "contextDestroyed"}) {
    const QByteArray text =
        QByteArray(R"({"type":"event","method":"browsingContext.%1","params":{"context":"c"}})").replace("%1", name);
    EXPECT_EQ(dialect.read(text).session, QString()) << name;
  }
}

TEST(Bidi, AStartScriptReachesTheBrowserAsOneLiteral) {
  const QString script = q("var a = \"b\\n\"; // \u2028 ') \n");
  const Command command = Bidi::addStartScript(q("page"), script);
  const QString declaration = command.parameters.value(q("functionDeclaration")).toString();
  const QString before = q("function() { (0, eval)(");
  const QString after = q("); }");
  ASSERT_TRUE(declaration.startsWith(before) && declaration.endsWith(after)) << declaration.toStdString();
  const QString literal = declaration.mid(before.size(), declaration.size() - before.size() - after.size());
  const QJsonArray read = QJsonDocument::fromJson(QStringLiteral("[%1]").arg(literal).toUtf8()).array();
  EXPECT_EQ(read.at(0).toString(), script);
  EXPECT_EQ(command.parameters.value(q("contexts")).toArray(), QJsonArray{q("page")});
  EXPECT_FALSE(Bidi::addStartScript({}, script).parameters.contains(q("contexts")));
}
