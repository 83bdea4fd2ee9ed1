// The functions that a script defines to be run: tests, setUp and tearDown.

#include <QRegularExpression>

#include "scripting/scripttest.h"

using namespace Corvex::Scripting;

namespace {

class ScriptTestFunctions : public FakeModel::ScriptTest {};

}  // namespace

TEST_F(ScriptTestFunctions, RunEachBetweenSetUpAndTearDownInTheirOrder) {
  write("function setUp() { test.log('up'); }", "lib.js");
  const ScriptResult result =
      run("test.log('body'); source('lib.js');\n"
          "function testZ() { test.log('Z'); test.fail('wrong'); }\n"
          "function testing() { test.fail(); }\n"
          "function test_a() { nowhere(); }\n"
          "function main() { test.skip('later'); }\n"
          "function tearDown() { test.log('down'); }\n"
          "function test1() { test.verify(true); }\n");
  EXPECT_EQ(listener.lines.filter(QRegularExpression(s("^(?!step)"))),
            QStringList({s("log body"),
                         s("function testZ"),
                         s("log up"),
                         s("log Z"),
                         s("failed wrong line 2"),
                         s("log down"),
                         s("FAILED"),
                         s("function test_a"),
                         s("log up"),
                         s("log down"),
                         s("FAILED ReferenceError: nowhere is not defined"),
                         s("function main"),
                         s("log up"),
                         s("log down"),
                         s("skipped later"),
                         s("function test1"),
                         s("log up"),
                         s("passed the condition line 7"),
                         s("log down"),
                         s("passed")}));
  const Outcome whole = result.whole();
  EXPECT_EQ(whole.error, s("test_a: ReferenceError: nowhere is not defined"));
  EXPECT_EQ(whole.trace.front().line, 4);
  EXPECT_EQ(whole.checks(), 2);
  EXPECT_FALSE(whole.isSkipped);
}

TEST_F(ScriptTestFunctions, AnErrorInSetUpOrTearDownBelongsToTheFunction) {
  const ScriptResult result =
      run("var calls = 0;\n"
          "function setUp() { if (++calls === 1) { throw new Error('no set-up'); } }\n"
          "function testA() { test.fail(); }\n"
          "function testB() { throw new Error('first'); }\n"
          "function tearDown() { throw new Error('no tear-down'); }\n");
  ASSERT_EQ(result.functions.size(), 2U);
  EXPECT_EQ(result.functions[0].error, s("no set-up"));
  EXPECT_EQ(result.functions[0].checks(), 0);
  EXPECT_EQ(result.functions[1].error, s("first"));
  EXPECT_EQ(listener.lines.filter(s("log")).value(1),
            s("log After the error there was another one, in ") + path() + s(":5: no tear-down"));
}

TEST_F(ScriptTestFunctions, WithoutTestsTheBodyIsTheTestAndTearDownEndsIt) {
  const struct {
    const char* body;
    const char* error;
  } rows[] = {{"test.log('body');", ""},
              {"test.log('body'); nowhere();", "ReferenceError: nowhere is not defined"},
              {"test.log('body'); test.skip();", ""}};
  for (const auto& row : rows) {
    listener.lines.clear();
    EXPECT_EQ(run(QByteArray(row.body) + "\nfunction tearDown() { test.log('down'); }").error, s(row.error));
    EXPECT_EQ(listener.lines, QStringList({s("log body"), s("log down")}));
  }
  EXPECT_TRUE(errorOf("function setUp() {}").startsWith(s("0: The script defines setUp(), but no main() ")));
}

TEST_F(ScriptTestFunctions, DoNotRunAfterABodyThatFailedOrWasSkipped) {
  const QByteArray functions = "\nfunction testA() { test.fail(); } function tearDown() { test.fail(); }";
  EXPECT_EQ(run("nowhere();" + functions).whole().checks(), 0);
  EXPECT_TRUE(run("test.skip();" + functions).whole().isSkipped);
  EXPECT_EQ(listener.lines, QStringList());
}

TEST_F(ScriptTestFunctions, ThoseThatWereChosenRunAlone) {
  const QString script = write("function testA() {} function testB() { test.skip(); } function testC() {}");
  ScriptEngine engine(host, &listener);
  EXPECT_TRUE(engine.runScript({script, {s("testB")}}).whole().isSkipped) << "All that were to run were skipped.";
  EXPECT_EQ(listener.lines, QStringList({s("function testB"), s("skipped")}));
  EXPECT_EQ(engine.runScript({script, {s("testX")}}).error,
            s("The script has not defined the function testX() that was chosen."));
}

TEST_F(ScriptTestFunctions, ATimeLimitEndsLoopsWaitsAndWhatComesAfter) {
  for (const char* script : {"for (;;) { try { for (;;) {} } catch (e) {} }",
                             "function testA() { for (;;) {} } function testB() { test.log('B'); }", "pause(1000);",
                             "waitForObject(\"{id='x'}\");"}) {
    ScriptEngine engine(host, &listener);
    listener = FakeModel::RecordingListener();
    Corvex::Clock::replace(nullptr);
    engine.setScriptTimeout(200);
    const RunSummary summary = engine.run({write(QByteArray(script) + "\nfunction tearDown() { test.log('down'); }"),
                                           write("test.log('next');", "next.js")});
    Corvex::Clock::replace(&clock);
    const bool isWaiting = !QByteArray(script).contains("for");
    EXPECT_EQ(listener.traces.value(0), path() + (isWaiting ? s(":1") : QString()));
    EXPECT_EQ(summary.failed(), 1) << script;
    EXPECT_EQ(summary.scripts, 2);
    EXPECT_EQ(listener.lines.last(), s("log next"));
    EXPECT_EQ(listener.lines.filter(QRegularExpression(s("log (B|down)"))), QStringList());
    EXPECT_EQ(listener.errors.value(0), s("The script took longer than the 0.2 s that it may take, and was ended."));
  }
}
