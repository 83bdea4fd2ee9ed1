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
      s("1: The arrays are too large, or too deeply nested, to be compared: compare parts of them.");
  EXPECT_EQ(errorOf("var a = [], b = []; a.push(a, a); b.push(b, b); test.compare(a, b);"), tooMuch);
  EXPECT_EQ(errorOf("var a = [], b = []; for (var i = 0; i < 40; ++i) { a = [a, a]; b = [b, b]; } test.compare(a, b);"),
            tooMuch);
}
