#include <thread>

#include "scripting/scripttest.h"

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
  EXPECT_EQ(
      traceLines(result.trace),
      QStringList({path() + s(":2 in look(): return findObject(name);"),
                   s("called from ") + path() + s(":4: [\"{id='none'}\"].forEach(function (name) { look(name); });")}));
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

TEST_F(ScriptErrors, OfCallsOfWhatIsNoFunction) {
  const struct {
    const char* script;
    const char* error;
  } cases[] = {
      {"o.clik()", "Field has no member 'clik'. Did you mean 'click'?"},
      {"o .clik ()", "Field has no member 'clik'. Did you mean 'click'?"},
      {"o['clik']()", "Field has no member 'clik'. Did you mean 'click'?"},
      {"o.clik", "Field has no member 'clik'. Did you mean 'click'?"},
      {"o.value()", "'value' is not a function: it is a property, use it without ()."},
      {"var children = 5; children(o)",
       "'children' is a variable of the script here, and not the function: give the variable another name."},
      {"let exists = exists(1)",
       "'exists' is a variable of the script here, and not the function: give the variable another name."},
      {"var plain = 5; plain()", "'plain' is not a function."},
      {"var plain = {value: 5}; o.value; plain.value()",
       "TypeError: Property 'value' of object [object Object] is not a function"},
  };
  world().add(s("{id='f'}"), s("Field"));
  for (const auto& one : cases) {
    EXPECT_EQ(errorOf(QByteArray("var o = findObject(\"{id='f'}\");\n") + one.script), s("2: ") + s(one.error))
        << one.script;
  }
}

TEST_F(ScriptErrors, AMissingMemberIsSaidToTheScriptItself) {
  world().add(s("{id='f'}"), s("Field"));
  EXPECT_EQ(errorOf("var o = findObject(\"{id='f'}\");\n"
                    "try { o.clik(1); } catch (e) { test.log(e.message); }\n"
                    "try { if (o.clik) { o.click(); } } catch (e) { test.log(e.message); }\n"),
            QString());
  EXPECT_EQ(listener.lines.filter(s("log")), QStringList({s("log Field has no member 'clik'. Did you mean 'click'?"),
                                                          s("log Field has no member 'clik'. Did you mean 'click'?")}));
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
