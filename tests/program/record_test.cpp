// What a person does in a page, as the program writes it. Here the page does it by itself.

#include <gtest/gtest.h>

#include <QFile>

#include <csignal>

#include "support/files.h"
#include "support/printing.h"
#include "support/programrun.h"

namespace {

using TestSupport::ProgramResult;
using TestSupport::ProgramRun;

const char* const page =
    "<input id='f' type='text' value='a &amp; b'><button id='b' type='button'>Press</button><script>"
    "function press() { b.dispatchEvent(new MouseEvent('mousedown', { bubbles: true })); }"
    "function type() { f.dispatchEvent(new KeyboardEvent('keyup', { bubbles: true, keyCode: 66 })); }"
    "setTimeout(function () { press(); type(); }, 100);</script>";

class Record : public testing::Test {
protected:
  QString textOf(const char* name) const {
    return QString::fromUtf8(TestSupport::readFile(program.folder() + QLatin1Char('/') + QLatin1String(name)));
  }

  ProgramRun program;
};

TEST_F(Record, ShowsAndKeepsEachLineUntilItIsInterrupted) {
  program.write("page.html", page);
  program.write("s.js", "old();\n");
  program.start({"record", "--headless", "page.html", "-o", "s.js", "--object-map", "m.tsv"});
  const QString lines =
      "startBrowser(\"page.html\");\nwaitForContextExists(\"page.html\");\nclickButton(\":Press\");\n";
  ASSERT_TRUE(program.waitForOutput("clickButton(\":Press\");"));
  EXPECT_TRUE(textOf("s.js").startsWith(lines)) << qPrintable(textOf("s.js"));
  // Text that nothing has ended yet.
  ASSERT_TRUE(program.waitForOutput("typeText("));
  ::kill(static_cast<pid_t>(program.processId()), SIGINT);
  const ProgramResult result = program.finish();
  EXPECT_EQ(result.exitCode, 0) << qPrintable(result.errors);
  EXPECT_EQ(textOf("s.js"), lines + "typeText(\":f\", \"a & b\");\n");
  EXPECT_EQ(result.output, textOf("s.js"));
  EXPECT_EQ(textOf("m.tsv").count(QLatin1Char('\n')), 2) << qPrintable(textOf("m.tsv"));
  EXPECT_EQ(program.browserProcesses(), QList<qint64>());
  EXPECT_EQ(program.leftovers(), QStringList());
  EXPECT_EQ(program.run({"run", "--object-map", "m.tsv", "s.js"}).exitCode, 0);
}

TEST_F(Record, WritesNoPasswordThatIsASecret) {
  program.write(
      "page.html",
      "<input id='p' type='password'><input id='u'><button id='b' type='button' onclick='1'>In</button><script>"
      "function type(field, text) { field.value = text;"
      "  field.dispatchEvent(new KeyboardEvent('keyup', { bubbles: true, keyCode: 66 })); }"
      "setTimeout(function () { type(p, 'open <Tab> sesame'); type(u, 'ada');"
      "  p.dispatchEvent(new KeyboardEvent('keyup', { bubbles: true, keyCode: 13 }));"
      "  b.dispatchEvent(new MouseEvent('mousedown', { bubbles: true })); }, 100);</script>");
  program.start({"record", "--headless", "page.html", "--secret", "SHOP_KEY", "-o", "s.js", "--object-map", "m.tsv"});
  ASSERT_TRUE(program.waitForOutput("clickButton("));
  ::kill(static_cast<pid_t>(program.processId()), SIGINT);
  const ProgramResult result = program.finish();
  EXPECT_TRUE(
      result.output.endsWith("setText(\":p\", environment.SHOP_KEY);\ntypeText(\":u\", \"ada\");\n"
                             "typeText(\":p\", \"<Return>\");\nclickButton(\":In\");\n"))
      << qPrintable(result.output);
  EXPECT_FALSE((textOf("s.js") + textOf("m.tsv") + result.errors).contains("sesame"));
  program.setEnvironment("SHOP_KEY", "open <Tab> sesame");
  program.write("s.js", textOf("s.js") + "test.compare(waitForObject(':p').value, 'open <Tab> sesame');");
  EXPECT_EQ(program.run({"run", "--object-map", "m.tsv", "s.js"}).exitCode, 0);
}

TEST_F(Record, RefusesWhatItCannotWriteBeforeTheBrowserStarts) {
  program.write("page.html", page);
  program.write("bad.tsv", "x\n");
  const struct {
    QStringList arguments;
    const char* complaint;
  } rows[] = {
      {{"page.html", "-o", "no/s.js"}, "The file 'no/s.js' cannot be written: No such file or directory."},
      {{"page.html", "--object-map", "bad.tsv"}, "bad.tsv:1: expected a symbolic name"},
      {{"page.html", "-o", "/dev/full"}, "The file '/dev/full' cannot be written: it is no regular file."},
      {{"page.html", "-o", "./page.html"}, "The recording would take the place of the page: give it another file"},
      {{"page.html", "-o", "a", "--object-map", "./a"}, "The script and the object map need a file each"},
      {{"page.html", "--append"}, "--append needs a script to add to: give it with -o."},
      {{"page.html", "-o", ""}, "--output needs the name of a file."},
      {{}, "The URL of the first page is missing."},
      {{"a", "b"}, "It takes one URL, not 2."},
      {{"page.html", "--secret", "my-password"}, "--secret takes the name of an environment variable, such as"},
  };
  for (const auto& row : rows) {
    const ProgramResult result = program.run(QStringList{"record", "--headless"} + row.arguments);
    EXPECT_EQ(result.exitCode, 2) << row.complaint;
    EXPECT_TRUE(result.errors.contains(row.complaint)) << qPrintable(result.errors);
    EXPECT_EQ(result.output, QString());
  }
  EXPECT_EQ(textOf("page.html"), QString(page));
}

TEST_F(Record, KeepsAnOldScriptWhereThePageCannotBeLoaded) {
  program.write("s.js", "old();\n");
  const ProgramResult result = program.run({"record", "--headless", "http://127.0.0.1:1/", "-o", "s.js"});
  EXPECT_EQ(result.exitCode, 1) << qPrintable(result.errors);
  EXPECT_EQ(textOf("s.js"), QString("old();\n"));
}

}  // namespace
