// Processes that run a script for a run, and what can go wrong with them: it is the script's error, and hangs nothing.

#include <gtest/gtest.h>

#include <QBuffer>
#include <QJsonDocument>

#include "scripting/report/runevents.h"
#include "shared/wait.h"
#include "support/printing.h"
#include "webhook/cli/worker.h"
#include "webhook/cli/workerrequest.h"

using namespace Corvex;
using namespace Corvex::Webhook;

namespace {

struct Misbehaviour {
  const char* name;
  /// What a shell does in the worker's place.
  const char* script;
  const char* error;
  bool runsAgain = true;
};

void PrintTo(const Misbehaviour& row, std::ostream* out) { *out << row.name; }

/// Notes how scripts and functions ended.
class Ends : public Scripting::ScriptListener {
public:
  void scriptStarted(const QString& path) override { seen << path; }
  void functionFinished(const Scripting::FunctionResult& result) override { seen << result.name; }
  void scriptFinished(const Scripting::ScriptResult& result) override { seen << result.whole().verdict(); }

  QStringList seen;
};

class MisbehavingWorker : public testing::TestWithParam<Misbehaviour> {};

TEST_P(MisbehavingWorker, IsTheScriptsError) {
  QBuffer events;
  events.open(QIODevice::ReadWrite);
  Worker worker(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QString::fromUtf8(GetParam().script)},
                {QStringLiteral("a.js"), {}, 1, 2}, &events);
  ASSERT_TRUE(poll(60000, 10, [&worker] { return worker.hasEnded(); }));
  const Scripting::ScriptResult result = worker.finish();
  EXPECT_EQ(result.error, QString::fromUtf8(GetParam().error));
  EXPECT_EQ(result.runsAgain, GetParam().runsAgain);
  EXPECT_EQ(result.path, QStringLiteral("a.js"));
  // It is written down like the end of any other script.
  events.seek(0);
  Ends ends;
  replayEvents(&events, &ends);
  ASSERT_GE(ends.seen.size(), 2);
  EXPECT_EQ(ends.seen.first(), QStringLiteral("a.js"));
  EXPECT_EQ(ends.seen.last(), result.whole().verdict());
  EXPECT_EQ(ends.seen.count(QStringLiteral("a.js")), 1);
}

const char* const unreadable = "The process of the script was ended, because what it told of it cannot be read.";
const Misbehaviour misbehaviours[] = {
    {"Crashes", "kill -SEGV $$",
     "The process of the script was ended by signal 11 (Segmentation fault) before the script's end."},
    {"IsKilledHalfway", "echo '{\"event\":\"scriptStarted\",\"path\":\"a.js\"}' >&3; kill -KILL $$",
     "The process of the script was ended by signal 9 (Killed) before the script's end."},
    {"Ends", "exit 2", "The process of the script ended with exit code 2 before the script's end."},
    {"TellsNoJson", "echo hello >&3; sleep 60", unreadable},
    {"TellsNoEvent", "echo '{\"event\":\"none\"}' >&3; sleep 60", unreadable},
    {"TellsOfTheRun", "echo '{\"event\":\"runFinished\"}' >&3; sleep 60", unreadable},
    {"EndlessLine", "cat /dev/zero >&3", "The process of the script was ended, because it told more than 64 MB of it."},
    {"TellsAfterTheEnd",
     "echo '{\"event\":\"scriptStarted\",\"path\":\"a.js\"}' >&3;"
     "echo '{\"event\":\"scriptFinished\",\"path\":\"a.js\"}' >&3; echo what >&3; exit 1",
     "", false},
};

INSTANTIATE_TEST_SUITE_P(Cli, MisbehavingWorker, testing::ValuesIn(misbehaviours),
                         [](const auto& row) { return row.param.name; });

TEST(Worker, WhatItSaysIsKeptAndBounded) {
  QBuffer events;
  events.open(QIODevice::ReadWrite);
  Worker worker(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QStringLiteral("echo oops; yes >&2")},
                {QStringLiteral("a.js"), {}}, &events);
  EXPECT_FALSE(poll(300, 10, [&worker] { return worker.hasEnded(); }));
  worker.finish();
  EXPECT_TRUE(worker.words().startsWith(QStringLiteral("oops\ny\n")));
  EXPECT_TRUE(worker.words().endsWith(QStringLiteral("(more was left out)\n")));
  EXPECT_LT(worker.words().size(), 300000);
}

TEST(Worker, WhatRanBeforeACrashIsKnown) {
  QBuffer events;
  events.open(QIODevice::ReadWrite);
  WorkerReport report({QStringLiteral("a.js"), {}}, &events);
  Scripting::EventWriter writer([&report](const QJsonObject& event) {
    // In pieces, as pipes give them.
    const QByteArray line = QJsonDocument(event).toJson(QJsonDocument::Compact) + '\n';
    report.take(line.left(7));
    report.take(line.mid(7));
  });
  Scripting::FunctionResult done;
  done.name = QStringLiteral("testDone");
  done.checksPassed = 2;
  writer.scriptStarted(QStringLiteral("a.js"));
  writer.check({true, QStringLiteral("body"), {}, {}});
  writer.functionStarted(done.name);
  writer.check({true, QStringLiteral("one"), {}, {}});
  writer.check({true, QStringLiteral("two"), {}, {}});
  writer.functionFinished(done);
  writer.functionStarted(QStringLiteral("testCrash"));
  writer.check({false, QStringLiteral("bad"), {}, {}});
  const Scripting::ScriptResult result = report.finish(QStringLiteral("gone"));
  EXPECT_EQ(result.functions.size(), 1U);
  EXPECT_EQ(result.whole().checksPassed, 3);
  EXPECT_EQ(result.whole().checksFailed(), 1);
  EXPECT_EQ(result.error, QStringLiteral("gone"));
}

TEST(Worker, EndlessLinesAreBounded) {
  QBuffer events;
  events.open(QIODevice::ReadWrite);
  WorkerReport report({QStringLiteral("a.js"), {}}, &events, {1 << 20, 3 << 20});
  for (int lines = 0; lines < 1000; ++lines) {
    report.take("{\"event\":\"log\",\"text\":\"" + QByteArray(10000, 'x') + "\"}\n");
  }
  EXPECT_EQ(report.finish(QString()).error,
            QStringLiteral("The process of the script was ended, because it told more than 3 MB of it."));
  EXPECT_LT(events.size(), (3 << 20) + 10000);
}

TEST(Worker, RequestsAreReadAsTheyWereWritten) {
  const Scripting::ScriptChoice choice = {QStringLiteral("a \"b\"\u00e4.js"), {QStringLiteral("testA")}, 2, 3};
  const auto read = readWorkerRequest(workerRequest(choice));
  EXPECT_FALSE(read.failed());
  EXPECT_EQ(read.value.path, choice.path);
  EXPECT_EQ(read.value.functions, choice.functions);
  EXPECT_EQ(read.value.attempt, 2);
  EXPECT_EQ(read.value.attempts, 3);
  for (const char* text : {"", "[]", "{\"path\": 1}", "{"}) {
    EXPECT_TRUE(readWorkerRequest(QString::fromLatin1(text)).failed()) << text;
  }
}

}  // namespace
