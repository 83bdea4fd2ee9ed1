// The printed hook script in a page that never saw it: prelude first, then the script; a second prelude changes
// nothing.

#include <gtest/gtest.h>

#include "support/printing.h"
#include "support/programrun.h"

namespace {

using TestSupport::ProgramResult;
using TestSupport::ProgramRun;

TEST(HookScript, PrintsTheTextAndNothingElse) {
  ProgramRun program;
  const ProgramResult script = program.run({QStringLiteral("hook-script")});
  EXPECT_EQ(script.exitCode, 0);
  EXPECT_EQ(script.errors, QString());
  EXPECT_TRUE(script.output.endsWith(QLatin1String("\ntop.__corvex__xpath__caseInSensitiveMatching = 1;")));
  EXPECT_TRUE(script.output.contains(QLatin1String("__corvex__standardselectExtension")));
  const ProgramResult prelude = program.run({QStringLiteral("hook-script"), QStringLiteral("--prelude")});
  EXPECT_EQ(prelude.exitCode, 0);
  EXPECT_TRUE(prelude.output.contains(QLatin1String("glassPaneIds")));
  EXPECT_LT(prelude.output.size(), 3000);
}

TEST(HookScript, BrokenSettingsLinesAreNamedAndCostNothing) {
  ProgramRun program;
  program.write(
      QStringLiteral("ver1/webwrapper.ini"),
      QStringLiteral("stray = 1\n[General]\nno \u001b[2Jequals sign\nCaseInsensitiveXPathNodeNameMatching = false\n"));
  const ProgramResult script = program.run({QStringLiteral("hook-script")});
  EXPECT_EQ(script.exitCode, 0);
  EXPECT_TRUE(script.output.endsWith(QLatin1String("caseInSensitiveMatching = 0;")));
  EXPECT_TRUE(script.errors.contains(QLatin1String("line `stray = 1' not in a group"))) << qPrintable(script.errors);
  EXPECT_TRUE(script.errors.contains(QLatin1String("corrupted line `no \\u001b[2Jequals sign' in group `General'")));
}

}  // namespace
