// The files of a script: what is read, and how their lines are told.

#include "scripting/scripttest.h"

using namespace Corvex::Scripting;

namespace {

class ScriptSources : public FakeModel::ScriptTest {};

const char* const advice = ". Give the path of a script, which is a text file in UTF-8.";

}  // namespace

TEST_F(ScriptSources, WhatIsNoScriptIsRefused) {
  write(QByteArray("test.log(1);\n\0test.verify(false);", 34), "nul.js");
  write(QByteArray("\x7f"
                   "ELF\x02\x01\x01\0\xff\xfe",
                   10),
        "program");
  const struct {
    QString path;
    const char* why;
  } rows[] = {
      {path("none.js"), "No such file or directory"},   {path(""), "it is a directory"},
      {path("nul.js"), "line 2 holds a NUL character"}, {path("program"), "line 1 is no UTF-8 text"},
      {s("/dev/zero"), "it is no regular file"},
  };
  for (const auto& row : rows) {
    const QString error = s("Cannot read the script '") + row.path + s("': ") + s(row.why) + s(advice);
    EXPECT_EQ(ScriptEngine(host, &listener).runFile(row.path).error, error);
    EXPECT_EQ(errorOf("\nsource('" + row.path.toUtf8() + "');"), s("2: ") + error);
  }
  EXPECT_EQ(listener.lines.filter(s("log")), QStringList()) << "Nothing before the NUL has run.";
}

TEST_F(ScriptSources, RunInTheSameScopeAndStartPathsAtTheirFolder) {
  write("var shared = 7;", "lib/part.js");
  write("source('part.js'); let own = 1;", "lib/all.js");
  EXPECT_EQ(errorOf("source('lib/all.js'); test.compare(shared, 7); test.compare(typeof own, 'undefined');"),
            QString());
  EXPECT_EQ(listener.lines.filter(s("failed")), QStringList());
}

TEST_F(ScriptSources, ErrorsNameEachCaller) {
  write("function broken() {\n  nowhere();\n}\n", "lib/part.js");
  write("source('part.js');\nbroken();\n", "lib/all.js");
  const ScriptResult result = run("\nsource('lib/all.js');\n");
  EXPECT_EQ(result.error, s("ReferenceError: nowhere is not defined"));
  EXPECT_EQ(traceLines(result.trace), QStringList({path("lib/part.js") + s(":2 in broken(): nowhere();"),
                                                   s("called from ") + path("lib/all.js") + s(":2: broken();"),
                                                   s("called from ") + path() + s(":2: source('lib/all.js');")}));
  write("var a = ;", "lib/part.js");
  EXPECT_EQ(traceLines(run("source('lib/part.js');").trace).size(), 2);
}

TEST_F(ScriptSources, LongTracesAreCutInTheMiddle) {
  QByteArray script = "function f(n) {\n  if (n === 0) { throw new Error('deep'); }\n";
  for (int i = 0; i < 30; ++i) {
    script += "  if (n % 30 === " + QByteArray::number(i) + ") {\n    f(n - 1);\n  }\n";
  }
  const QStringList lines = traceLines(run(script + "}\nf(100);").trace);
  EXPECT_EQ(lines.size(), 21);
  EXPECT_EQ(lines.value(15), s("... 82 more"));
  EXPECT_EQ(lines.last(), s("called from ") + path() + s(":94: f(100);"));
}

TEST_F(ScriptSources, PathsMayHoldAnyCharacter) {
  const QString strange = write("\nnowhere();", "a b#c%20\xc3\xa4?.js");
  EXPECT_EQ(traceLines(ScriptEngine(host, &listener).runFile(strange).trace),
            QStringList(strange + s(":2: nowhere();")));
}
