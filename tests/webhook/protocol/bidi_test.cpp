#include "webhook/protocol/bidi/bidi.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

#include "support/printing.h"

using namespace Corvex::Webhook;

namespace {

QString q(const char* text) { return QString::fromUtf8(text); }

}  // namespace

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
