// Commands that cannot be carried out: one sentence that names what is wrong, and nothing left. Wrong usage is exit
// code 2, and nothing is started then.

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
  int exitCode = 2;
};

void PrintTo(const Misuse& misuse, std::ostream* out) { *out << misuse.name; }

class WrongUsage : public testing::TestWithParam<Misuse> {};

TEST_P(WrongUsage, IsExplained) {
  ProgramRun program;
  program.write(QStringLiteral("good.js"), QStringLiteral("test.log('ran');"));
  program.write(QStringLiteral("ver1/_only.js"), QString());
  const ProgramResult result = program.run(GetParam().arguments);
  EXPECT_EQ(result.exitCode, GetParam().exitCode);
  EXPECT_EQ(result.output, QString());
  EXPECT_TRUE(result.errors.contains(QLatin1String(GetParam().complaint))) << qPrintable(result.errors);
  EXPECT_EQ(program.leftovers(), QStringList());
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
    {"BadCredentials",
     {"run", "--credentials", "secret", "good.js"},
     "--credentials takes a user and a password, such as"},
    {"BadProxy", {"run", "--proxy", "ada:x@h:1", "good.js"}, "--proxy takes a host and a port, such as"},
    {"ProxyOfAttached",
     {"run", "--proxy", "h:1", "--attach", "ws://127.0.0.1:1/", "good.js"},
     "--proxy cannot stand beside --attach"},
    {"BadScriptTimeout",
     {"run", "--script-timeout", "0", "good.js"},
     "--script-timeout takes a number of seconds above 0, not '0'."},
    {"NoJobs", {"run", "--jobs", "0", "good.js"}, "--jobs takes a number from 1 to 64, not '0'."},
    {"ManyJobs", {"run", "--jobs", "65", "good.js"}, "--jobs takes a number from 1 to 64, not '65'."},
    {"JobsOfAttached",
     {"run", "--jobs", "2", "--attach", "ws://127.0.0.1:1/", "good.js"},
     "--jobs cannot stand beside --attach: scripts side by side cannot share a browser."},
    {"BadRetries", {"run", "--retries", "-1", "good.js"}, "--retries takes a number from 0 to 100, not '-1'."},
    {"BadStopAfter",
     {"run", "--stop-after", "0", "good.js"},
     "--stop-after takes a number from 1 to 1000000, not '0'."},
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
    {"TypingsArgument", {"typings", "x.d.ts"}, "It takes no arguments, and prints to the standard output."},
    {"HookScriptArgument", {"hook-script", "now"}, "It takes no arguments."},
    {"TreeDepth", {"tree", "--depth", "deep", "x"}, "--depth takes a number of levels from 0 on, not 'deep'."},
    {"TreeNoFile", {"tree", "nosuchpage.html"}, "nosuchpage.html", 1},
    {"NamesNoPage", {"names"}, "corvexweb names: The page's URL is missing."},
    {"NamesTwoPages", {"names", "a.html", "b.html"}, "It takes one URL, not 2."},
    {"NamesBadTime", {"names", "--wait", "soon", "a.html"}, "--wait takes a number of seconds above 0, not 'soon'."},
    {"NamesNoFile", {"names", "nothing.html"}, "There is no file 'nothing.html' either.", 1},
    {"NamesNoServer", {"names", "http://127.0.0.1:1/"}, "http://127.0.0.1:1/", 1},
    {"NamesNoBrowser", {"names", "--browser", "/no/such/browser", "about:blank"}, "/no/such/browser", 3},
};

INSTANTIATE_TEST_SUITE_P(Program, WrongUsage, testing::ValuesIn(misuses),
                         [](const auto& misuse) { return misuse.param.name; });

TEST(Help, GoesToStandardOutputAndNamesTheOptions) {
  ProgramRun program;
  const ProgramResult result = program.run({QStringLiteral("run"), QStringLiteral("--help")});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.errors, QString());
  for (const char* option : {"--browser", "--headed", "--attach", "--timeout", "--junit", "--report", "--trace",
                             "--object-map", "--arg", "--filter", "--script-timeout", "--list", "--last-failed",
                             "--jobs", "--retries", "--stop-after", "--verbose", "SCRIPT..."}) {
    EXPECT_TRUE(result.output.contains(QLatin1String(option))) << option;
  }
}

}  // namespace
