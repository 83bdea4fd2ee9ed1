#include "scripting/scripttest.h"

#include "corvexhook/inspector.h"

using namespace Corvex;
using namespace Corvex::Scripting;
using FakeModel::world;

namespace {

class ScriptWaits : public FakeModel::ScriptTest {
protected:
  ScriptWaits() {
    world().add(s("{id='f'}"), s("Field"));
    host.functions.push_back({s("currentUrl"), s("currentUrl()"), 0, 0, [this](const ObjectList&) {
                                ++asked;
                                return FunctionCallResult<SharedPtr<Object>>::success(
                                    Inspector::self()->wrapString(asked > 5 ? s("http://a/b?c=(1)") : s("http://a/")));
                              }});
  }

  int asked = 0;
};

}  // namespace

TEST_F(ScriptWaits, WaitForGivesWhatTheFunctionFinallyAnswers) {
  EXPECT_EQ(errorOf("var n = 0;\n"
                    "var got = waitFor(function () { if (++n < 4) throw new Error('no'); return n > 6 && 'seven'; });\n"
                    "test.compare(got, 'seven'); test.compare(n, 7);"),
            QString());
  EXPECT_LT(clock.nowMs, 1000);
  EXPECT_TRUE(listener.lines.filter(s("failed")).isEmpty());
}

TEST_F(ScriptWaits, StepsOfAnAttemptAreNotTold) {
  EXPECT_EQ(
      errorOf("var n = 0; waitFor(function () { return exists(\"{id='f'}\") && ++n > 3; }); exists(\"{id='f'}\")"),
      QString());
  ASSERT_EQ(listener.lines.size(), 2);
  EXPECT_TRUE(listener.lines[0].startsWith(s("step waitFor")));
  EXPECT_EQ(listener.lines[1], s("step exists {id='f'}"));
}

TEST_F(ScriptWaits, AWaitInVainTellsWhatItSawLast) {
  EXPECT_EQ(
      errorOf("\nwaitFor(function () { return null; }, 300);"),
      s("2: The function given to waitFor answered nothing that counts as true within 300 ms; it was last null."));
  EXPECT_GE(clock.nowMs, 300);
  EXPECT_LT(clock.nowMs, 400);
  EXPECT_EQ(errorOf("waitFor(function () { findObject(\"{id='none'}\"); }, 50);"),
            s("1: The function given to waitFor answered nothing that counts as true within 50 ms. The last attempt "
              "failed: Object '{id='none'}' not found."));
  EXPECT_EQ(errorOf("waitForValue([{ a: '%3' }], '0.a', '%1', 40);"),
            s("1: The property '0.a' of [{a: '%3'}] did not become '%1' within 40 ms; it was last '%3'."));
  EXPECT_EQ(errorOf("waitForUrl('x*', 40);"), s("1: The address did not fit 'x*' within 40 ms; it was last "
                                                "'http://a/'."));
}

TEST_F(ScriptWaits, AddressesFitWholeWildcardsAndExpressions) {
  EXPECT_EQ(errorOf("waitForUrl('*/b?c=(?)');"), QString());
  EXPECT_GT(asked, 5);
  asked = 0;
  EXPECT_EQ(errorOf("test.compare(waitForUrl(/C=\\(1/gi), 'http://a/b?c=(1)');"), QString());
  EXPECT_GT(asked, 5);
  EXPECT_TRUE(errorOf("waitForUrl('b?c=(?)', 60);").contains(s("did not fit")));
}

TEST_F(ScriptWaits, BadInputIsASentenceWithoutAnyWaiting) {
  EXPECT_EQ(errorOf("waitFor(1);"), s("1: waitFor needs a function, as in waitFor(function () { return done; })."));
  EXPECT_EQ(errorOf("waitFor();"),
            s("1: waitFor takes 1 to 2 argument(s), but got 0. Use it as waitFor(function[, milliseconds])."));
  EXPECT_EQ(errorOf("waitFor(function () {}, 'soon');"),
            s("1: waitFor: the time to wait must be a number of milliseconds, but got 'soon'."));
  EXPECT_EQ(errorOf("waitForValue(\"{id='f'}\", '', 1);"),
            s("1: waitForValue needs the name of a property, such as \"value\" or \"css.color\"."));
  EXPECT_EQ(errorOf("waitForValue(null, 'value', 1);"), s("1: waitForValue needs an object or its name."));
  EXPECT_EQ(errorOf("waitForUrl('');"),
            s("1: waitForUrl needs a text with wildcards, such as \"*/basket?\", or a regular expression."));
  EXPECT_EQ(errorOf("waitForObjectGone(3);"), s("1: waitForObjectGone needs the name of an object, but got 3."));
  EXPECT_EQ(clock.nowMs, 0);
}

TEST_F(ScriptWaits, WaitForObjectGoneWaitsUntilNothingFits) {
  clock.onSleep = [this] {
    if (clock.nowMs >= 100) {
      world().things.remove(s("{id='f'}"));
    }
  };
  EXPECT_EQ(errorOf("waitForObjectGone(\"{id='f'}\");"), QString());
  EXPECT_GE(clock.nowMs, 100);
  EXPECT_LT(clock.nowMs, 200);
  EXPECT_EQ(errorOf("waitForObjectGone(\"{id='none'}\", 0);"), QString());
  clock.onSleep = nullptr;
  world().add(s("{id='f'}"), s("Field"));
  EXPECT_EQ(errorOf("waitForObjectGone(\"{id='f'}\", 60);"),
            s("1: '{id='f'}' was still there after 60 ms, and visible."));
}

TEST_F(ScriptWaits, WhatHappensBesideTheScriptIsToldWhereItCame) {
  std::vector<HostNews> news{{s("noise"), false}, {s("fault"), true}};
  host.takeNews = [&news] { return std::exchange(news, {}); };
  const ScriptResult result = run("\ncurrentUrl();\ntest.log('next');");
  EXPECT_EQ(listener.lines,
            QStringList({s("step currentUrl"), s("log noise"), s("failed fault line 2"), s("log next")}));
  EXPECT_EQ(result.failedChecks.size(), 1u);
  EXPECT_TRUE(result.error.isEmpty());
}

TEST_F(ScriptWaits, AnInterruptedScriptWaitsNoMore) {
  ScriptEngine engine(host, &listener);
  clock.onSleep = [&engine] { engine.interrupt(); };
  EXPECT_EQ(engine.runFile(write("waitFor(function () { return false; });")).error, s("interrupted"));
  EXPECT_LT(clock.nowMs, 1000);
}
