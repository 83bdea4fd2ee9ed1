#include "scripting/report/runevents.h"

#include <gtest/gtest.h>

#include <QJsonDocument>

#include "support/printing.h"

using namespace Corvex::Scripting;

namespace {

QString s(const char* utf8) { return QString::fromUtf8(utf8); }

void fill(Outcome* outcome) {
  outcome->error = s("It <ended>.");
  outcome->trace = {{s("a.js"), 3, s("look"), s("go(\"x\");")}, {s("b.js"), 0, QString(), QString()}};
  outcome->checksPassed = 4;
  outcome->failedChecks = {{s("got 1"), outcome->trace, {s("outer"), s("inner")}}};
  outcome->isSkipped = true;
  outcome->skipReason = s("later");
  outcome->durationMs = 4294967296123;
}

/// Each event there is, with something in every field.
void tellAll(ScriptListener* listener) {
  FunctionResult function;
  fill(&function);
  function.name = s("testA");
  ScriptResult script;
  fill(&script);
  script.path = s("/a/\u00fc b.js");
  script.interrupted = true;
  script.attempt = 2;
  script.runsAgain = true;
  script.functions = {function};
  RunSummary summary;
  summary.add(script);
  summary.flaky = 3;
  summary.notRun = QStringList{s("late.js")};
  const ScriptTrace trace = function.trace;
  Picture picture{
      Picture::Purpose::Step, QByteArray("\x00\xff</script>", 11), s("image/png"), {7, 9}, {1, 2, 3, 4}, s("No.")};
  listener->environment({{s("Browser"), s("A 1")}, {s("Machine"), s("B")}});
  listener->scriptStarted(script.path);
  listener->functionStarted(function.name);
  listener->groupStarted(s("outer"));
  listener->step({s("click 'a\n\u0001'"), 12, trace, s("No.")});
  listener->objectCall({s("Field.text"), 1, trace, QString()});
  listener->check({false, s("differs"), trace, Comparison{QString(), s("2")}});
  listener->check({true, s("holds"), {}, {}});
  listener->log(s("a line"));
  listener->pageMessage({s("uncaught"), s("Boom")});
  listener->picture(picture);
  picture.purpose = Picture::Purpose::Failure;
  picture.marked = QRect();
  listener->picture(picture);
  listener->tree("{\"title\":\"\xc3\xbc\"}");
  listener->groupFinished(s("outer"), s("why"), 5);
  listener->functionFinished(function);
  listener->scriptFinished(script);
  listener->runFinished(summary);
}

}  // namespace

TEST(RunEvents, SurviveBeingWrittenAndToldAgain) {
  QList<QByteArray> written;
  EventWriter first([&](const QJsonObject& event) { written << QJsonDocument(event).toJson(QJsonDocument::Compact); });
  tellAll(&first);
  QList<QByteArray> again;
  EventWriter second([&](const QJsonObject& event) { again << QJsonDocument(event).toJson(QJsonDocument::Compact); });
  for (const QByteArray& event : written) {
    EXPECT_TRUE(replay(QJsonDocument::fromJson(event).object(), &second)) << event.toStdString();
  }
  EXPECT_EQ(again, written);
  EXPECT_EQ(written.size(), 17);
}

TEST(RunEvents, ComeBackAsTheyWere) {
  struct Witness : ScriptListener {
    void check(const Check& check) override { checks.push_back(check); }
    void picture(const Picture& picture) override { pictures.push_back(picture); }
    void scriptFinished(const ScriptResult& result) override { script = result; }
    std::vector<Check> checks;
    std::vector<Picture> pictures;
    ScriptResult script;
  } witness;
  EventWriter writer([&](const QJsonObject& event) { replay(event, &witness); });
  tellAll(&writer);
  ASSERT_EQ(witness.checks.size(), 2u);
  ASSERT_TRUE(witness.checks[0].comparison);
  EXPECT_EQ(witness.checks[0].comparison->expected, s("2"));
  EXPECT_EQ(witness.checks[0].trace.at(0).text(), s("a.js:3"));
  EXPECT_FALSE(witness.checks[1].comparison);
  ASSERT_EQ(witness.pictures.size(), 2u);
  EXPECT_EQ(witness.pictures[0].bytes.size(), 11);
  EXPECT_EQ(witness.pictures[0].marked, QRect(1, 2, 3, 4));
  EXPECT_EQ(witness.pictures[0].purpose, Picture::Purpose::Step);
  EXPECT_TRUE(witness.pictures[1].marked.isEmpty());
  EXPECT_EQ(witness.script.functions.at(0).failedChecks.at(0).fullText(), s("outer: inner: got 1"));
  EXPECT_EQ(witness.script.durationMs, 4294967296123);
  EXPECT_TRUE(witness.script.interrupted && witness.script.runsAgain);
  EXPECT_EQ(witness.script.attempt, 2);
}

TEST(RunEvents, WhatIsNoneIsRefused) {
  ScriptListener silent;
  EXPECT_FALSE(replay({}, &silent));
  EXPECT_FALSE(replay({{s("event"), s("nonsense")}}, &silent));
  EXPECT_TRUE(replay({{s("event"), s("picture")}, {s("marked"), s("wrong")}}, &silent));
}
