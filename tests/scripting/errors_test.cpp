#include <thread>

#include "scripttest.h"

using namespace Corvex::Scripting;
using FakeModel::world;

namespace {

class ScriptErrors : public FakeModel::ScriptTest {};

}  // namespace

TEST_F(ScriptErrors, NameTheLineOfTheScript) {
  const ScriptResult result =
      run("function look(name) {\n"
          "  return findObject(name);\n"
          "}\n"
          "[\"{id='none'}\"].forEach(function (name) { look(name); });\n"
          "test.log('not reached');\n");
  EXPECT_EQ(result.error, s("Object '{id='none'}' not found."));
  EXPECT_EQ(result.location.text(), path() + s(":2"));
  EXPECT_EQ(result.sourceLine, s("return findObject(name);"));
  EXPECT_EQ(listener.lines.filter(s("log")), QStringList());
}

TEST_F(ScriptErrors, OfTheLanguage) {
  const struct {
    const char* script;
    const char* error;
  } cases[] = {
      {"var a = 1;\nnowhere(a);", "2: ReferenceError: nowhere is not defined"},
      {"var a;\n\na.b = 1;", "3: TypeError: "},
      {"var a = 1;\nvar b = ;", "2: SyntaxError: "},
      {"var a = 1;\nif (a) {\n", "3: SyntaxError: "},
      {"throw new Error('mine');", "1: mine"},
      {"throw 'text';",
       "0: The script threw 'text', which is no Error: use throw new "
       "Error(text) to see the line."},
      {"throw undefined;", "0: The script threw undefined"},
      {"function f() { f(); }\nf();", "1: RangeError: "},
  };
  for (const auto& one : cases) {
    EXPECT_TRUE(errorOf(one.script).startsWith(s(one.error))) << one.script << "\n"
                                                              << errorOf(one.script).toStdString();
  }
}

TEST_F(ScriptErrors, CanBeCaughtByTheScript) {
  EXPECT_EQ(errorOf("try { findObject(\"{id='none'}\"); }\n"
                    "catch (e) { test.log(e.message); }\n"
                    "test.compare(exists(\"{id='none'}\"), false);"),
            QString());
  EXPECT_TRUE(listener.lines.contains(s("log Object '{id='none'}' not found.")));
}

TEST_F(ScriptErrors, ValuesAndCommentsAtTheEndAreNone) {
  for (const char* script : {"", "5", "'text'", "new Error('a value')", "1 // comment",
                             "#!/usr/bin/env corvexweb\nvar a", "({a: 1})", "'use strict'; var b"}) {
    EXPECT_EQ(errorOf(script), QString()) << script;
  }
}

TEST_F(ScriptErrors, OfAFileThatCannotBeRead) {
  ScriptEngine engine(host, &listener);
  EXPECT_EQ(engine.runFile(path("none.js")).error, QStringLiteral("Cannot read the script '%1': No such file or "
                                                                  "directory. Check the path.")
                                                       .arg(path("none.js")));
  EXPECT_EQ(engine.runFile(path("")).error, QStringLiteral("Cannot read the script '%1': it is a directory. "
                                                           "Give the path of a script file.")
                                                .arg(path("")));
}

TEST_F(ScriptErrors, InSourcedFilesNameThose) {
  write("var shared = 7;\nfunction broken() { nowhere(); }\n", "lib/part.js");
  write("source('part.js');\n", "lib/all.js");
  const ScriptResult result =
      run("source('lib/all.js');\n"
          "test.compare(shared, 7);\n"
          "broken();\n");
  EXPECT_EQ(result.checksPassed, 1);
  EXPECT_EQ(result.error, s("ReferenceError: nowhere is not defined"));
  EXPECT_EQ(result.location.text(), path("lib/part.js") + s(":2"));
  EXPECT_EQ(result.sourceLine, s("function broken() { nowhere(); }"));
  EXPECT_TRUE(errorOf("\nsource('gone.js');").startsWith(s("2: Cannot read the script '") + path("gone.js")));
}

TEST_F(ScriptErrors, InterruptEndsEndlessLoops) {
  ScriptEngine* running = nullptr;
  std::thread other;
  host.functions.push_back(
      {s("interruptFromOutside"), s("interruptFromOutside()"), 0, 0, [&](const Corvex::ObjectList&) {
         other = std::thread([&] { running->interrupt(); });
         return Corvex::FunctionCallResult<Corvex::SharedPtr<Corvex::Object>>();
       }});
  ScriptEngine engine(host, &listener);
  running = &engine;
  const RunSummary summary = engine.run({write("interruptFromOutside();\n"
                                               "for (;;) { try { for (;;) {} } catch (e) {} }"),
                                         path("never.js")});
  other.join();
  EXPECT_TRUE(engine.isInterrupted());
  EXPECT_EQ(summary.scripts, 1);
  EXPECT_EQ(summary.failed(), 1);
}

TEST_F(ScriptErrors, InterruptEndsWaitsAndPauses) {
  for (const char* script : {"pause(1000);", "waitForObject(\"{id='x'}\");"}) {
    ScriptEngine engine(host, &listener);
    clock.nowMs = 0;
    clock.onSleep = [&] { engine.interrupt(); };
    const ScriptResult result = engine.runFile(write(script));
    EXPECT_EQ(result.error, s("interrupted"));
    EXPECT_TRUE(result.interrupted);
    EXPECT_LT(clock.nowMs, 1000);
  }
}
