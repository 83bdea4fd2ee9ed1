// The functions of the global object "test".

#include "scripting/scripttest.h"

using namespace Corvex::Scripting;

namespace {

class ScriptChecks : public FakeModel::ScriptTest {};

}  // namespace

TEST_F(ScriptChecks, AreRecordedAndTheScriptGoesOn) {
  const ScriptResult result =
      run("test.verify(1 < 2, 'order');\n"
          "test.verify(false);\n"
          "test.compare('5', 5, 'types');\n"
          "test.compare([1, [2]], [1, [2]]);\n"
          "test.compare(NaN, NaN);\n"
          "test.log('end', 1);\n");
  EXPECT_EQ(result.error, QString());
  EXPECT_FALSE(result.passed());
  EXPECT_EQ(result.checksPassed, 3);
  EXPECT_EQ(result.checksFailed(), 2);
  EXPECT_EQ(listener.lines,
            QStringList({s("passed order line 1"), s("failed the condition does not hold line 2"),
                         s("failed types: got '5', but expected 5 line 3"), s("passed got [1, [2]] as expected line 4"),
                         s("passed got NaN as expected line 5"), s("log end 1")}));
}

TEST_F(ScriptChecks, TellWhoCalledTheFunctionThatTheyStandIn) {
  write("function check(a) {\n  test.verify(a);\n}\n", "lib.js");
  const ScriptResult result = run("source('lib.js');\ncheck(true);\ncheck(false);");
  ASSERT_EQ(result.checksFailed(), 1);
  EXPECT_EQ(traceText(result.failedChecks.front().trace), path("lib.js") + s(":2, called from ") + path() + s(":3"));
}

TEST_F(ScriptChecks, WrongCallsAreSentences) {
  EXPECT_EQ(errorOf("test.compare(1)"), s("1: test.compare takes 2 to 3 argument(s), but got 1. Use it as "
                                          "test.compare(actual, expected[, message])."));
  EXPECT_TRUE(errorOf("test.verify()").startsWith(s("1: test.verify takes 1 to 2 argument(s), but got 0.")));
}

TEST_F(ScriptChecks, LargeDeepAndEndlessValuesAreComparedAndShownInPart) {
  EXPECT_EQ(errorOf(R"JS(
    function nested(n) { var a = []; for (var i = 0; i < n; ++i) { a = [a]; } return a; }
    test.compare(nested(400), nested(400));
    test.verify(!test.compare(nested(400), nested(399)));
    var own = []; own.push(own, own, own, own);
    test.compare(own, own);
    test.compare(own, [own, own, own, own]);
    var wide = []; for (var i = 0; i < 50000; ++i) { wide.push([i]); }
    test.compare(wide, wide.slice());
    test.compare(new Array(100001).join("x"), new Array(100001).join("x"));
    var loud = { toString: function () { test.log(loud); return ""; } };
    test.log(loud);
  )JS"),
            QString());
  EXPECT_EQ(listener.lines.filter(s("failed")).size(), 1);
  for (const QString& line : listener.lines) {
    EXPECT_LT(line.size(), 10000);
  }
  const QString tooMuch =
      s("1: The values are too large, or too deeply nested, to be compared: compare parts of them.");
  EXPECT_EQ(errorOf("var a = [], b = []; a.push(a, a); b.push(b, b); test.compare(a, b);"), tooMuch);
  EXPECT_EQ(errorOf("var a = [], b = []; for (var i = 0; i < 40; ++i) { a = [a, a]; b = [b, b]; } test.compare(a, b);"),
            tooMuch);
}

TEST_F(ScriptChecks, CompareObjectsByContentAndNameTheFirstDifference) {
  const struct {
    const char* actual;
    const char* expected;
    const char* line;
  } rows[] = {
      {"{a: 1, b: [{c: 'x'}]}", "{b: [{c: 'x'}], a: 1}", "passed got {a: 1, b: [{c: 'x'}]} as expected"},
      {"{}", "{}", "passed got {} as expected"},
      {"Object.create(null)", "{}", "passed got {} as expected"},
      {"{items: [{price: 1}, {price: '2'}]}", "{items: [{price: 1}, {price: 2}]}",
       "failed got {items: [{price: 1}, {price: '2'}]}, but expected {items: [{price: 1}, {price: 2}]}; "
       "they differ at .items[1].price: '2', but expected 2"},
      {"{a: {'b c': null}}", "{a: {'b c': undefined}}",
       "failed got {a: {b c: null}}, but expected {a: {b c: undefined}}; they differ at .a['b c']: null, but expected "
       "undefined"},
      {"{a: 1}", "{a: 1, b: undefined}",
       "failed got {a: 1}, but expected {a: 1, b: undefined}; they differ at .b: there is none, but expected "
       "undefined"},
      {"{a: 1, b: 2}", "{a: 1}",
       "failed got {a: 1, b: 2}, but expected {a: 1}; they differ at .b: 2, but expected none"},
      {"[1]", "[1, 2]", "failed got [1], but expected [1, 2]; they differ at [1]: there is none, but expected 2"},
      {"[]", "{}", "failed got [], but expected {}"},
      {"{}", "null", "failed got {}, but expected null"},
      {"new Date(5)", "new Date(5)", nullptr},
      {"/a/", "/a/", "failed got /a/, but expected /a/"},
  };
  for (const auto& row : rows) {
    listener.lines.clear();
    EXPECT_EQ(errorOf(QByteArray("test.compare(") + row.actual + ", " + row.expected + ")"), QString());
    EXPECT_EQ(listener.lines.size(), 1);
    EXPECT_TRUE(row.line ? listener.lines.value(0) == s(row.line) + s(" line 1")
                         : listener.lines.value(0).startsWith(s("passed")))
        << qPrintable(listener.lines.value(0)) << "\n"
        << row.actual;
  }
  EXPECT_EQ(errorOf("var a = {}, b = {}; a.own = a; b.own = b; test.compare(a, b);"),
            s("1: The values are too large, or too deeply nested, to be compared: compare parts of them."));
}

TEST_F(ScriptChecks, ThrowsTellsWhatTheFunctionThrew) {
  const struct {
    const char* arguments;
    const char* line;
  } rows[] = {
      {"function () { findObject('x'); }, 'not found'",
       "passed the function threw 'Object 'x' not found.' as expected"},
      {"function () { nowhere(); }, /^ReferenceError: no\\w+/g",
       "passed the function threw 'ReferenceError: nowhere is not defined' as expected"},
      {"function () { throw 'text'; }", "passed the function threw 'text' as expected"},
      {"function () {}", "failed the function threw nothing, but an error was expected"},
      {"function () { throw new Error('a.c'); }, 'abc'",
       "failed the function threw 'a.c', but expected was an error that contains 'abc'"},
      {"function () { throw new Error('a.c'); }, /^c/",
       "failed the function threw 'a.c', but expected was an error that matches /^c/"},
  };
  for (const auto& row : rows) {
    listener.lines.clear();
    EXPECT_EQ(errorOf(QByteArray("\ntest.throws(") + row.arguments + ")"), QString());
    EXPECT_EQ(listener.lines.filter(s("step"), Qt::CaseSensitive).size() + 1, listener.lines.size());
    EXPECT_EQ(listener.lines.last(), s(row.line) + s(" line 2"));
  }
  EXPECT_EQ(errorOf("test.throws('x')"),
            s("1: test.throws needs a function. Use it as test.throws(function[, text or RegExp])."));
}

TEST_F(ScriptChecks, StepsAreGroupsThatPassTheirResultAndTheirErrorOn) {
  const ScriptResult result =
      run("test.compare(test.step('outer', function () {\n"
          "  return test.step('inner', function () { test.fail('bad'); return 5; });\n"
          "}), 5);\n"
          "test.step('last', function () {\n"
          "  throw new Error('gone');\n"
          "});\n");
  EXPECT_EQ(listener.lines,
            QStringList({s("begin outer"), s("begin inner"), s("failed bad line 2"), s("end inner"), s("end outer"),
                         s("passed got 5 as expected line 1"), s("begin last"), s("end last gone")}));
  EXPECT_EQ(result.error, s("gone"));
  EXPECT_EQ(result.trace.front().line, 5);
  ASSERT_EQ(result.checksFailed(), 1);
  EXPECT_EQ(result.failedChecks.front().fullText(), s("outer: inner: bad"));
  EXPECT_EQ(errorOf("test.step('title')"), s("1: test.step needs a function. Use it as test.step(title, function)."));
}

TEST_F(ScriptChecks, SkipEndsTheScriptAtOnceWithoutFailure) {
  write("function leave() { try { test.skip('no server'); } catch (e) { test.fail(); } finally { test.fail(); } }",
        "lib.js");
  const ScriptResult result =
      run("source('lib.js');\n"
          "test.step('group', function () { try { leave(); } finally { test.fail(); } });\n"
          "test.fail();\n");
  EXPECT_EQ(result.error, QString());
  EXPECT_TRUE(result.isSkipped);
  EXPECT_TRUE(result.passed());
  EXPECT_EQ(result.skipReason, s("no server"));
  EXPECT_EQ(listener.lines, QStringList({s("step source lib.js"), s("begin group"), s("end group")}));
  for (const char* script : {"[1, 2].forEach(function () { test.skip(); test.fail(); });",
                             "'ab'.replace(/./g, function () { test.skip(); test.fail(); });",
                             "test.log({ get a() { test.skip(); test.fail(); } }.a, test.fail());",
                             "test.throws(function () { test.skip(); }); test.fail();"}) {
    EXPECT_EQ(run(script).verdict(), s("skipped")) << script;
  }
  EXPECT_EQ(run("test.fail();\ntest.skip();").verdict(), s("FAILED"));
  EXPECT_EQ(run("").verdict(), s("passed"));
}
