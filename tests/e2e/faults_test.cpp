// The browser is killed at a bad moment: the script ends with a sentence, and nothing is left.

#include <gtest/gtest.h>

#include <signal.h>

#include <QElapsedTimer>

#include "e2e/pagesite.h"
#include "support/printing.h"

namespace {

using TestSupport::PageSite;
using TestSupport::ProgramResult;

struct Moment {
  const char* name;
  const char* script;
  /// A path that the browser asks for when the moment has come; otherwise the script logs "now".
  const char* path;
};

class KilledBrowser : public testing::TestWithParam<Moment> {};

TEST_P(KilledBrowser, EndsTheScriptAtOnceAndLeavesNothing) {
  PageSite site;
  site.write(QStringLiteral("test.js"), QString::fromUtf8(GetParam().script));
  site.program().start(site.arguments({QStringLiteral("test.js")}));
  const QString path = QString::fromUtf8(GetParam().path);
  ASSERT_TRUE(path.isEmpty() ? site.program().waitForOutput(QStringLiteral("now"))
                             : site.program().waitUntil([&] { return site.server().requests().contains(path); }));
  const QList<qint64> processes = site.program().browserProcesses();
  ASSERT_FALSE(processes.isEmpty());
  for (const qint64 process : processes) {
    kill(static_cast<pid_t>(process), SIGKILL);
  }
  QElapsedTimer timer;
  timer.start();
  const ProgramResult result = site.program().finish();
  EXPECT_LT(timer.elapsed(), 10000);
  EXPECT_EQ(result.exitCode, 3);
  EXPECT_TRUE(result.output.contains(QLatin1String("The browser was lost"))) << qPrintable(result.output);
  EXPECT_FALSE(result.output.contains(QLatin1String("reached"))) << qPrintable(result.output);
  site.expectNothingLeft();
}

const Moment moments[] = {
    {"Evaluation",
     "startBrowser(SITE + '/plain.html');\nvar body = findObject(\"{tagName='BODY'}\");\n"
     "test.log('now');\nbody.invoke('spin');\ntest.log('reached');",
     ""},
    {"Navigation", "startBrowser(SITE + '/never');\ntest.log('reached');", "/never"},
    {"Pause", "startBrowser(SITE + '/plain.html');\ntest.log('now');\npause(50);\ntest.log('reached');", ""},
    {"WaitForAContext",
     "startBrowser(SITE + '/plain.html');\ntest.log('now');\n"
     "waitForContextExists('nowhere');\ntest.log('reached');",
     ""},
    {"OpenDialog",
     "startBrowser(SITE + '/dialogs.html');\nclickButton(element('BUTTON', 'confirm'));\n"
     "failureOf(function () { pause(0.7); });\ntest.log('now');\npause(30);\ntest.log('reached');",
     ""},
    {"WaitForAnotherDialog",
     "startBrowser(SITE + '/dialogs.html');\nclickButton(element('BUTTON', 'prompt'));\n"
     "test.log('now');\nfor (;;) { closeAlert(20000); }",
     ""},
};

INSTANTIATE_TEST_SUITE_P(EndToEnd, KilledBrowser, testing::ValuesIn(moments),
                         [](const auto& moment) { return moment.param.name; });

}  // namespace
