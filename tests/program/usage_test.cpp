// Wrong usage: exit code 2, one sentence that names what is wrong, and nothing started.

#include <gtest/gtest.h>

#include "support/printing.h"
#include "support/programrun.h"

namespace {

using TestSupport::ProgramResult;
using TestSupport::ProgramRun;

struct Misuse {
  const char* name;
  QStringList arguments;
  const char* complaint;
};

class WrongUsage : public testing::TestWithParam<Misuse> {};

TEST_P(WrongUsage, IsExplained) {
  ProgramRun program;
  program.write(QStringLiteral("good.js"), QStringLiteral("test.log('ran');"));
  program.write(QStringLiteral("ver1/_only.js"), QString());
  const ProgramResult result = program.run(GetParam().arguments);
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.output, QString());
  EXPECT_TRUE(result.errors.contains(QLatin1String(GetParam().complaint))) << qPrintable(result.errors);
}

const Misuse misuses[] = {
    {"NoCommand", {}, "A command is missing."},
    {"UnknownCommand", {"rnu"}, "There is no command 'rnu'."},
    {"UnknownOption", {"run", "--hedaed", "good.js"}, "Unknown option 'hedaed'."},
    {"NoScript", {"run"}, "A script is missing."},
    {"MissingScript", {"run", "good.js", "bad.js"}, "The script 'bad.js' does not exist."},
    {"EmptyRemote",
     {"run", "--remote", "", "good.js"},
     "--remote needs the address of a WebDriver server, such as http://127.0.0.1:4444."},
    {"BadTimeout", {"run", "--timeout", "soon", "good.js"}, "--timeout takes a number of seconds above 0, not 'soon'."},
    {"BadArgument",
     {"run", "--arg", "=x", "good.js"},
     "--arg takes a name and its value, such as --arg server=test1, not '=x'."},
    {"BadScriptTimeout",
     {"run", "--script-timeout", "0", "good.js"},
     "--script-timeout takes a number of seconds above 0, not '0'."},
    {"NothingFits",
     {"run", "--filter", "none", "--filter", "x*", "good.js"},
     "No script and no test function fits --filter 'none' or 'x*'."},
    {"EmptyFolder", {"run", "ver1"}, "The folder 'ver1' holds no scripts: files that end in .js"},
    {"JUnitFile", {"run", "--junit", "/nowhere/x.xml", "good.js"}, "/nowhere/x.xml"},
    {"MissingObjectMap",
     {"run", "--object-map", "none.map", "good.js"},
     "Cannot read the object map 'none.map': No such file or directory."},
    {"BrokenObjectMap",
     {"run", "--object-map", "good.js", "good.js"},
     "good.js:1: expected a symbolic name that begins with ':', a tab, and the real name."},
    {"HookScriptArgument", {"hook-script", "now"}, "It takes no arguments."},
};

INSTANTIATE_TEST_SUITE_P(Program, WrongUsage, testing::ValuesIn(misuses),
                         [](const auto& misuse) { return misuse.param.name; });

TEST(Help, GoesToStandardOutputAndNamesTheOptions) {
  ProgramRun program;
  const ProgramResult result = program.run({QStringLiteral("run"), QStringLiteral("--help")});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.errors, QString());
  for (const char* option : {"--browser", "--headed", "--attach", "--timeout", "--junit", "--object-map", "--arg",
                             "--filter", "--script-timeout", "--verbose", "SCRIPT..."}) {
    EXPECT_TRUE(result.output.contains(QLatin1String(option))) << option;
  }
}

}  // namespace
