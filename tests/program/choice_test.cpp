// Which scripts and test functions run, what they are given, and how they end; no browser is needed.

#include <gtest/gtest.h>

#include <QRegularExpression>

#include "support/files.h"
#include "support/printing.h"
#include "support/programrun.h"

namespace {

using TestSupport::ProgramResult;
using TestSupport::ProgramRun;

/// What the scripts have logged, in their order.
QString logged(const ProgramResult& result) {
  const QRegularExpression line(QStringLiteral("^ *log +(.*)$"), QRegularExpression::MultilineOption);
  QStringList texts;
  for (auto lines = line.globalMatch(result.output); lines.hasNext();) {
    texts << lines.next().captured(1);
  }
  return texts.join(QLatin1Char(' '));
}

void writeScripts(ProgramRun& program, const QStringList& files) {
  for (const QString& file : files) {
    program.write(file, QStringLiteral("test.log('%1');").arg(file));
  }
}

struct Chosen {
  const char* name;
  QStringList arguments;
  const char* logged;
};

class Choice : public testing::TestWithParam<Chosen> {};

TEST_P(Choice, RunsInOrder) {
  ProgramRun program;
  writeScripts(program, {"all/b/login.js", "all/a.js", "all/_kit.js", "all/_kit/x.js", "all/lib/y.js", "all/.z/z.js",
                         "all/notes.txt", "all/c/lib.js", "_alone.js"});
  program.write(QStringLiteral("all/tests.js"), QStringLiteral("function setUp() { test.log('up'); }\n"
                                                               "function testPay() { test.log('pay'); }\n"
                                                               "function testLogin() { test.log('login'); }\n"
                                                               "function payee() { test.fail(); }\n"));
  const ProgramResult result = program.run(QStringList{QStringLiteral("run")} + GetParam().arguments);
  EXPECT_EQ(result.exitCode, 0) << qPrintable(result.errors);
  EXPECT_EQ(logged(result), QLatin1String(GetParam().logged));
}

const Chosen choices[] = {
    {"Folder", {"all"}, "all/a.js all/b/login.js all/c/lib.js up pay up login"},
    {"FilesAndFolders", {"_alone.js", "all/c/"}, "_alone.js all/c/lib.js"},
    {"TextOfPath", {"all", "--filter", "C/L"}, "all/c/lib.js"},
    {"TheGivenFolderIsNoPart", {"--filter", "a", "all"}, "all/a.js up pay"},
    {"PathOrFunction", {"all", "--filter", "login"}, "all/b/login.js up login"},
    {"Wildcard", {"all", "--filter", "?.js"}, "all/a.js"},
    {"WildcardIsTheWhole", {"all", "--filter", "*Log*"}, "all/b/login.js up login"},
    {"Several", {"all", "--filter", "a.js", "--filter", "testPay"}, "all/a.js up pay"},
};

INSTANTIATE_TEST_SUITE_P(Program, Choice, testing::ValuesIn(choices), [](const auto& one) { return one.param.name; });

TEST(ScriptRuns, ArgumentsReachEveryScript) {
  ProgramRun program;
  program.write(QStringLiteral("a.js"),
                QStringLiteral("test.log(JSON.stringify(script.arguments), environment.CORVEX_HERE, script.name);"));
  program.setEnvironment(QStringLiteral("CORVEX_HERE"), QStringLiteral("here"));
  const ProgramResult result = program.run({QStringLiteral("run"), QStringLiteral("--arg"), QStringLiteral("a=b=c"),
                                            QStringLiteral("--arg"), QStringLiteral("x="), QStringLiteral("a.js")});
  EXPECT_EQ(logged(result), QStringLiteral("{\"a\":\"b=c\",\"x\":\"\"} here a"));
}

TEST(ScriptRuns, SkippedOnesAreToldAndNoFailure) {
  ProgramRun program;
  program.write(QStringLiteral("skip.js"), QStringLiteral("test.skip('no <server>');"));
  program.write(QStringLiteral("tests.js"),
                QStringLiteral("function testA() { test.step('in', function () { test.skip(); }); }\n"
                               "function testB() { test.step('in', function () { test.verify(true); }); }"));
  const ProgramResult result = program.run({QStringLiteral("run"), QStringLiteral("--junit"), QStringLiteral("j.xml"),
                                            QStringLiteral("skip.js"), QStringLiteral("tests.js")});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_TRUE(result.output.contains(QRegularExpression(QStringLiteral("skipped skip\\.js \\(.*\\): no <server>\n"))));
  EXPECT_TRUE(result.output.contains(QStringLiteral("2 scripts: 1 passed, 0 failed, 1 skipped; 1 check, 0 failed;")))
      << qPrintable(result.output);
  EXPECT_TRUE(result.output.contains(QStringLiteral("\n  begin   in\n    passed  the condition\n  end     in (")))
      << qPrintable(result.output);
  const QString xml = QString::fromUtf8(TestSupport::readFile(program.folder() + QStringLiteral("/j.xml")));
  EXPECT_TRUE(xml.contains(QStringLiteral("tests=\"3\" failures=\"0\" errors=\"0\" skipped=\"2\""))) << qPrintable(xml);
  EXPECT_TRUE(xml.contains(QStringLiteral("<skipped message=\"no &lt;server&gt;\"/>"))) << qPrintable(xml);
  EXPECT_TRUE(xml.contains(QStringLiteral("<testcase name=\"testB\" classname=\"tests\" assertions=\"1\"")));
}

TEST(ScriptRuns, AScriptThatTakesTooLongEndsAndTheNextOneRuns) {
  ProgramRun program;
  program.write(QStringLiteral("endless.js"), QStringLiteral("while (true) {}"));
  program.write(QStringLiteral("waits.js"), QStringLiteral("pause(1000);"));
  writeScripts(program, {QStringLiteral("next.js")});
  const ProgramResult result =
      program.run({QStringLiteral("run"), QStringLiteral("--script-timeout"), QStringLiteral("0.5"),
                   QStringLiteral("endless.js"), QStringLiteral("waits.js"), QStringLiteral("next.js")});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.output.count(QStringLiteral("The script took longer than the 0.5 s that it may take, and was "
                                               "ended.")),
            2);
  EXPECT_EQ(logged(result), QStringLiteral("next.js"));
}

}  // namespace
