// What the program writes: nothing that pages say steers the terminal, and an output that takes no more is a failure.

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>
#include <QXmlStreamReader>

#include "support/files.h"
#include "support/printing.h"
#include "support/programrun.h"

namespace {

using TestSupport::ProgramResult;
using TestSupport::ProgramRun;

// Escape, a C1 control, delete, carriage return, an override of direction, a NUL, and what has no width.
const char* const hostilePage = R"(<!DOCTYPE html><title>t</title><p id=p>x</p><script>
var hostile = 'a\u001b[31m\u009bm\u007f\r\u202eb\u0000c\u200b\u2060';
document.getElementById('p').title = hostile;
</script>)";

/// Whether each character may be shown to people as it is.
bool isVisible(const QString& text) {
  for (const QChar c : text) {
    const bool isBreak = c == QLatin1Char('\n') || c == QLatin1Char('\t');
    if ((c.category() == QChar::Other_Control && !isBreak) || c.category() == QChar::Other_Format) {
      return false;
    }
  }
  return true;
}

class HostileText : public testing::Test {
protected:
  HostileText() { m_program.write(QStringLiteral("page.html"), QString::fromUtf8(hostilePage)); }

  ProgramRun m_program;
};

TEST_F(HostileText, IsVisibleInReports) {
  m_program.write(
      QStringLiteral("test.js"),
      QStringLiteral(
          "startBrowser('page.html');\nvar p = findObject(\"{tagName='P'}\");\n"
          "test.log(p.title + '\\ud800');\ntest.compare(p.title, p.title.length);\nthrow new Error(p.title);"));
  const ProgramResult result =
      m_program.run({QStringLiteral("run"), QStringLiteral("--verbose"), QStringLiteral("--junit"),
                     QStringLiteral("out.xml"), QStringLiteral("test.js")});
  EXPECT_EQ(result.exitCode, 1);
  const QString start = QStringLiteral("a\\u001b[31m\\u009bm\\u007f\\r\\u202eb\\u0000");
  for (const char* line : {"  log     ", "  FAILED  got '", "  ERROR   "}) {
    EXPECT_TRUE(result.output.contains(QLatin1String(line) + start)) << line << qPrintable(result.output);
  }
  EXPECT_TRUE(isVisible(result.output)) << qPrintable(result.output);

  QXmlStreamReader xml(TestSupport::readFile(m_program.folder() + QStringLiteral("/out.xml")));
  QString message;
  while (!xml.atEnd()) {
    if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("error")) {
      message = xml.attributes().value(QStringLiteral("message")).toString();
    }
  }
  EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
  EXPECT_TRUE(message.startsWith(start)) << qPrintable(message);
}

TEST_F(HostileText, IsVisibleWhereAPageIsShown) {
  const QString page = QStringLiteral("page.html");
  const ProgramResult results[] = {m_program.run({QStringLiteral("tree"), page}),
                                   m_program.run({QStringLiteral("names"), QStringLiteral("--all"), page}),
                                   m_program.run({QStringLiteral("tree"), QStringLiteral("--json"), page})};
  for (const ProgramResult& result : results) {
    EXPECT_TRUE(result.output.contains(QLatin1String("a\\u001b[31m\\u009bm\\u007f"))) << qPrintable(result.output);
    EXPECT_TRUE(isVisible(result.output + result.errors)) << qPrintable(result.output + result.errors);
  }
  for (const QStringList& arguments : {QStringList{"dump", page, "-o", "dump\u200b.json"},
                                       {"tree", "none\u202e\u001b[2J.html"},
                                       {"run", "none\u202e.js"},
                                       {"tree", "--depth", "\u2066", "x"}}) {
    const ProgramResult result = m_program.run(arguments);
    EXPECT_TRUE((result.output + result.errors).contains(QLatin1String("\\u20"))) << qPrintable(result.errors);
    EXPECT_TRUE(isVisible(result.output + result.errors)) << qPrintable(result.output + result.errors);
  }
  EXPECT_TRUE(QJsonDocument::fromJson(results[2].output.toUtf8()).isObject()) << qPrintable(results[2].output);
}

struct Unwritable {
  const char* name;
  const char* redirection;
  const char* why;
  QStringList arguments;
};

void PrintTo(const Unwritable& unwritable, std::ostream* out) { *out << unwritable.name; }

class UnwritableOutput : public testing::TestWithParam<Unwritable> {};

TEST_P(UnwritableOutput, IsAFailureThatIsExplained) {
  ProgramRun program;
  program.write(QStringLiteral("page.html"), QStringLiteral("<p>x</p>"));
  program.write(QStringLiteral("good.js"), QStringLiteral("test.log('ran');"));
  const ProgramResult result =
      program.runInShell(QStringLiteral("\"$@\" ") + QString::fromLatin1(GetParam().redirection), GetParam().arguments);
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.errors,
            QStringLiteral("corvexweb: The output cannot be written: %1.\n").arg(QLatin1String(GetParam().why)));
  EXPECT_EQ(program.leftovers(), QStringList());
}

const char* const full = "> /dev/full";
const char* const noSpace = "No space left on device";
const Unwritable unwritables[] = {
    {"Run", full, noSpace, {"run", "good.js"}},
    {"Closed", ">&-", "Bad file descriptor", {"run", "good.js"}},
    {"Tree", full, noSpace, {"tree", "page.html"}},
    {"HookScript", full, noSpace, {"hook-script"}},
    {"Help", full, noSpace, {"--help"}},
    {"CommandHelp", full, noSpace, {"run", "--help"}},
};

INSTANTIATE_TEST_SUITE_P(Program, UnwritableOutput, testing::ValuesIn(unwritables),
                         [](const auto& unwritable) { return unwritable.param.name; });

TEST(ClosedOutput, EndsTheRunWhateverTheScriptDoes) {
  ProgramRun program;
  program.write(QStringLiteral("page.html"), QStringLiteral("<p>x</p>"));
  program.write(QStringLiteral("test.js"),
                QStringLiteral("startBrowser('page.html');\nfor (;;) { try { test.log('more'); } catch (e) {} }"));
  // Closed outputs end programs unless these ignore the signal.
  const ProgramResult result =
      program.runInShell(QStringLiteral("trap '' PIPE; { \"$@\"; echo \"exit code $?\" >&2; } | head -n 3"),
                         {QStringLiteral("run"), QStringLiteral("test.js"), QStringLiteral("test.js")});
  EXPECT_EQ(result.errors, QStringLiteral("exit code 1\n"));
  EXPECT_TRUE(result.output.endsWith(QLatin1String("  log     more\n"))) << qPrintable(result.output);
  EXPECT_EQ(program.leftovers(), QStringList());
  EXPECT_EQ(program.browserProcesses(), QList<qint64>());
}

}  // namespace
