// Scripts side by side, in processes of their own: one report of them all, and nothing of them outlives the run.

#include <gtest/gtest.h>

#include <signal.h>

#include <QFileInfo>
#include <QRegularExpression>

#include "support/files.h"
#include "support/printing.h"
#include "support/programrun.h"

namespace {

using TestSupport::ProgramResult;
using TestSupport::ProgramRun;

/// The test cases of the JUnit file, with what went wrong in them.
QStringList junitCases(const ProgramRun& program) {
  const QString xml = QString::fromUtf8(TestSupport::readFile(program.folder() + QStringLiteral("/j.xml")));
  static const QRegularExpression element(
      QStringLiteral("<testcase name=\"([^\"]*)\"|<(error|failure|flakyError|flakyFailure|rerunFailure) "));
  QStringList cases;
  for (auto matches = element.globalMatch(xml); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    if (match.captured(2).isEmpty()) {
      cases << match.captured(1);
    } else {
      cases.last() += QLatin1Char(' ') + match.captured(2);
    }
  }
  return cases;
}

TEST(Jobs, OneReportOfScriptsSideBySide) {
  ProgramRun program;
  // The later ones end first, one of them with its process.
  program.write(QStringLiteral("a.js"), QStringLiteral("for (var i = 0; i < 20; ++i) { test.log('a'); pause(0.03); }\n"
                                                       "function testOne() { test.log('a'); }\n"
                                                       "function testTwo() { test.fail(); }"));
  program.write(QStringLiteral("b.js"), QStringLiteral("for (var i = 0; i < 5; ++i) { test.log('b'); pause(0.03); }"));
  program.write(QStringLiteral("c.js"), QStringLiteral("test.log('c'); var o = {}; o.toString = String.bind(null, o);\n"
                                                       "String(o);"));
  program.write(QStringLiteral("d.js"), QStringLiteral("test.skip(script.arguments.why);"));
  const ProgramResult result =
      program.run({"run", "--jobs", "3", "--junit", "j.xml", "--arg", "why=later", "--filter", "?.js", "."});
  EXPECT_EQ(result.exitCode, 1) << qPrintable(result.errors);
  EXPECT_EQ(junitCases(program), QStringList({"testOne", "testTwo failure", "a.js", "b.js", "c.js error", "d.js"}));
  // No line of one script stands among those of another.
  QString scripts;
  for (const QString& line : result.output.split(QLatin1Char('\n'))) {
    const QChar script = line.startsWith(QLatin1String("  log")) ? line.back() : QChar();
    scripts += script.isNull() || scripts.endsWith(script) ? QString() : QString(script);
  }
  EXPECT_EQ(scripts.size(), 3) << qPrintable(result.output);
  EXPECT_TRUE(
      result.output.contains(QStringLiteral("  ERROR   The process of the script was ended by signal 11 "
                                            "(Segmentation fault) before the script's end.\n          c.js\n")))
      << qPrintable(result.output);
  EXPECT_TRUE(result.output.contains(QStringLiteral("\n4 scripts: 1 passed, 2 failed, 1 skipped; ")));
  EXPECT_TRUE(result.output.contains(QRegularExpression(QStringLiteral("skipped d\\.js \\(.*\\): later\n"))));
  EXPECT_EQ(program.run({"run", "--last-failed", "--list", "."}).output,
            QStringLiteral("a.js\n  testOne()\n  testTwo()\nc.js\n"));
  EXPECT_EQ(program.leftovers(), QStringList());
}

TEST(Jobs, EndAfterFailures) {
  ProgramRun program;
  program.write(QStringLiteral("1.js"), QStringLiteral("test.fail('x');"));
  program.write(QStringLiteral("2.js"), QStringLiteral("pause(1);"));
  program.write(QStringLiteral("3.js"), QString());
  const ProgramResult result = program.run({"run", "--jobs", "2", "--stop-after", "1", "."});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_TRUE(result.output.contains(QStringLiteral("passed 2.js"))) << qPrintable(result.output);
  EXPECT_TRUE(result.output.contains(QStringLiteral("not run 3.js\n3 scripts: 1 passed, 1 failed, 1 not run;")))
      << qPrintable(result.output);
}

TEST(Jobs, AnOutputThatTakesNoMoreEndsThemAll) {
  ProgramRun program;
  program.write(QStringLiteral("a.js"), QStringLiteral("test.log('x');"));
  program.write(QStringLiteral("b.js"), QStringLiteral("pause(600);"));
  const ProgramResult result =
      program.runInShell(QStringLiteral("\"$@\" > /dev/full"), {"run", "--jobs", "2", "a.js", "b.js"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.errors, QStringLiteral("corvexweb: The output cannot be written: No space left on device.\n"));
  EXPECT_EQ(program.processes(), QList<qint64>());
}

TEST(Jobs, NeedAFolderForWhatTheyTell) {
  ProgramRun program;
  program.write(QStringLiteral("a.js"), QString());
  program.setEnvironment(QStringLiteral("TMPDIR"), QStringLiteral("/proc"));
  const ProgramResult result = program.run({"run", "--jobs", "2", "a.js"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.errors, QStringLiteral("corvexweb run: No folder for temporary files can be made in '/proc'. Set "
                                          "TMPDIR to one that you may write to.\n"));
}

class JobsWithBrowsers : public testing::Test {
protected:
  JobsWithBrowsers() {
    program.write(QStringLiteral("page.html"), QStringLiteral("<p>x</p>"));
    program.write(QStringLiteral("wait1.js"),
                  QStringLiteral("startBrowser('page.html'); saveTree(script.name + '.json'); pause(600);"));
    program.write(QStringLiteral("wait2.js"),
                  QStringLiteral("startBrowser('page.html'); saveTree(script.name + '.json'); pause(600);"));
    // Fails until it has left a file.
    program.write(
        QStringLiteral("flaky.js"),
        QStringLiteral("startBrowser('page.html');\n"
                       "function testIt() { try { readTable('left.json'); } catch (e) {\n"
                       "  if (/object/.test(e.message)) { return; }\n  saveTree('left.json'); throw e; } }\n"));
  }

  /// Both browsers run.
  void startWaiting() {
    program.start({"run", "--jobs", "2", "wait1.js", "wait2.js"});
    ASSERT_TRUE(program.waitUntil([this] {
      return QFileInfo::exists(program.folder() + QStringLiteral("/wait1.json")) &&
             QFileInfo::exists(program.folder() + QStringLiteral("/wait2.json"));
    }));
    EXPECT_GE(program.browserProcesses().size(), 2);
  }

  ProgramRun program;
};

TEST_F(JobsWithBrowsers, NothingIsLeftAfterASignal) {
  startWaiting();
  kill(static_cast<pid_t>(program.processId()), SIGINT);
  const ProgramResult result = program.finish();
  EXPECT_EQ(result.exitCode, 130);
  EXPECT_EQ(result.output, QString());
  EXPECT_EQ(program.processes(), QList<qint64>());
  EXPECT_EQ(program.leftovers(), QStringList());
}

TEST_F(JobsWithBrowsers, NothingRunsOnWhenTheRunIsKilled) {
  startWaiting();
  kill(static_cast<pid_t>(program.processId()), SIGKILL);
  program.finish();
  EXPECT_TRUE(TestSupport::ProgramRun::eventually([this] { return program.processes().isEmpty(); }));
}

TEST_F(JobsWithBrowsers, AScriptThatPassesAtTheSecondAttemptIsFlaky) {
  const ProgramResult result = program.run({"run", "--jobs", "2", "--retries", "2", "--junit", "j.xml", "flaky.js"});
  EXPECT_EQ(result.exitCode, 0) << qPrintable(result.output + result.errors);
  EXPECT_TRUE(result.output.contains(QStringLiteral("\nFAILED flaky.js"))) << qPrintable(result.output);
  EXPECT_TRUE(result.output.contains(QStringLiteral("\nflaky.js, attempt 2\n"))) << qPrintable(result.output);
  EXPECT_TRUE(result.output.contains(QStringLiteral("): passed at attempt 2\n1 script: 1 passed (1 flaky), 0 failed;")))
      << qPrintable(result.output);
  EXPECT_EQ(junitCases(program), QStringList("testIt flakyError"));
}

TEST_F(JobsWithBrowsers, ABrowserThatDoesNotStartHasTheSameExitCode) {
  EXPECT_EQ(program.run({"run", "--browser", "/no/such/browser", "--jobs", "2", "wait1.js", "wait2.js"}).exitCode, 3);
}

}  // namespace
