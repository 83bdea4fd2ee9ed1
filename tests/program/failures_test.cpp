// What can go wrong while scripts run: one clear sentence, the right exit code, nothing left running or lying about.

#include <gtest/gtest.h>

#include <signal.h>

#include "support/printing.h"
#include "support/programrun.h"

namespace {

using TestSupport::ProgramResult;
using TestSupport::ProgramRun;

void expectNothingLeft(const ProgramRun& program) {
  EXPECT_EQ(program.leftovers(), QStringList());
  EXPECT_EQ(program.browserProcesses(), QList<qint64>());
}

struct Failure {
  const char* name;
  const char* script;
  const char* sentence;
  int exitCode;
};

class FailingScript : public testing::TestWithParam<Failure> {};

TEST_P(FailingScript, EndsWithASentence) {
  ProgramRun program;
  program.write(QStringLiteral("page.html"), QStringLiteral("<a href='#'>link</a><input name='i'>"));
  program.write(QStringLiteral("stuck.html"), QStringLiteral("<script>for(;;){}</script>"));
  program.write(QStringLiteral("test.js"), QString::fromUtf8(GetParam().script));
  const ProgramResult result = program.run(
      {QStringLiteral("run"), QStringLiteral("--timeout"), QStringLiteral("1.5"), QStringLiteral("test.js")});
  EXPECT_EQ(result.exitCode, GetParam().exitCode);
  EXPECT_TRUE(result.output.contains(QString::fromUtf8(GetParam().sentence))) << qPrintable(result.output);
  EXPECT_TRUE(result.output.contains(QLatin1String("test.js:"))) << qPrintable(result.output);
  expectNothingLeft(program);
}

const Failure failures[] = {
    {"NoBrowser", "findObject('x');", "No browser is running. Call startBrowser(url) first.", 1},
    {"NoField", "startBrowser('page.html');\ntypeText(\"{tagName='A' simplifiedInnerText='link'}\", 'x');",
     "could not be given text within 1500 ms: it takes no text.", 1},
    {"MissingUpload",
     "startBrowser('page.html');\nvar i = findObject(\"{tagName='INPUT' name='i'}\");\n"
     "i.setProperty('type', 'file'); setText(i, '/no/such.file');",
     "'/no/such.file': there is no such file", 1},
    {"NoServer", "startBrowser('http://127.0.0.1:1/');", "http://127.0.0.1:1/", 1},
    {"PageNeverAnswers", "startBrowser('stuck.html');", "stuck.html", 1},
    {"NoName", "startBrowser('page.html');\nsetFrameContext(null);",
     "setFrameContext got null for argument number 1. Use it as setFrameContext(path).", 1},
    {"ClosedWindow", "startBrowser('page.html');\ncloseWindow();\nfindObject('x');", "The browser window is closed.",
     1},
    {"SyntaxError", "startBrowser('page.html'\n", "test.js:", 1},
};

INSTANTIATE_TEST_SUITE_P(Program, FailingScript, testing::ValuesIn(failures),
                         [](const auto& failure) { return failure.param.name; });

TEST(BrowserFailure, NamesWhatIsNotThere) {
  const QStringList missing[] = {{QStringLiteral("--browser"), QStringLiteral("/no/such/browser")},
                                 {QStringLiteral("--attach"), QStringLiteral("ws://127.0.0.1:1/devtools")}};
  for (const QStringList& option : missing) {
    ProgramRun program;
    program.write(QStringLiteral("test.js"), QStringLiteral("startBrowser('about:blank');"));
    const ProgramResult result = program.run(QStringList{QStringLiteral("run")} + option + QStringList("test.js"));
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_TRUE(result.output.contains(option.last())) << qPrintable(result.output);
    expectNothingLeft(program);
  }
}

class Signals : public testing::TestWithParam<int> {};

TEST_P(Signals, EndTheProgramInAnEndlessScriptAndLeaveNothing) {
  ProgramRun program;
  program.write(QStringLiteral("test.js"),
                QStringLiteral("startBrowser('about:blank');\ntest.log('started');\nfor(;;){}"));
  program.start({QStringLiteral("run"), QStringLiteral("test.js")});
  ASSERT_TRUE(program.waitForOutput(QStringLiteral("started")));
  kill(static_cast<pid_t>(program.processId()), GetParam());
  EXPECT_EQ(program.finish().exitCode, 128 + GetParam());
  expectNothingLeft(program);
}

INSTANTIATE_TEST_SUITE_P(Program, Signals, testing::Values(SIGINT, SIGTERM));

}  // namespace
