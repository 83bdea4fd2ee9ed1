// The program's good road: the shipped examples, and what a run reports.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

#include "support/printing.h"
#include "support/programrun.h"

namespace {

using TestSupport::ProgramResult;
using TestSupport::ProgramRun;

TEST(Examples, AllPass) {
  const QDir folder(QStringLiteral(CORVEX_TEST_SOURCE "/../examples/shop/tests"));
  QStringList arguments = {QStringLiteral("run")};
  for (const QString& script : folder.entryList({QStringLiteral("*.js")}, QDir::Files, QDir::Name)) {
    arguments << folder.absoluteFilePath(script);
  }
  ASSERT_GE(arguments.size(), 4);
  ProgramRun program;
  const ProgramResult result = program.run(arguments);
  EXPECT_EQ(result.exitCode, 0) << qPrintable(result.output + result.errors);
  EXPECT_EQ(program.leftovers(), QStringList());
  EXPECT_EQ(program.browserProcesses(), QList<qint64>());
}

TEST(Run, GoesOnBehindAFailedScriptAndReportsAll) {
  ProgramRun program;
  program.write(QStringLiteral("page.html"), QStringLiteral("<title>t</title><button name='b'>Go</button>"));
  program.write(QStringLiteral("first.js"),
                QStringLiteral("startBrowser('page.html');\ntest.compare(1, 2, 'sum');\n"
                               "\n   findObject(\"{tagName='BUTTON' name='c'}\");\ntest.log('not reached');\n"));
  program.write(QStringLiteral("second.js"),
                QStringLiteral("startBrowser('page.html');\n"
                               "test.compare(findObject(\"{tagName='BUTTON' name='b'}\").innerText, 'Go');\n"));
  const ProgramResult result = program.run({QStringLiteral("run"), QStringLiteral("--junit"), QStringLiteral("out.xml"),
                                            QStringLiteral("first.js"), QStringLiteral("second.js")});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_TRUE(result.output.contains(QLatin1String("Object '{tagName='BUTTON' name='c'}' not found.")));
  EXPECT_TRUE(result.output.contains(QLatin1String("first.js:4: findObject(")));
  EXPECT_FALSE(result.output.contains(QLatin1String("not reached")));
  EXPECT_TRUE(result.output.contains(QLatin1String("2 scripts: 1 passed, 1 failed; 2 checks, 1 failed;")));
  QFile file(program.folder() + QStringLiteral("/out.xml"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  int cases = 0;
  QXmlStreamReader xml(&file);
  while (!xml.atEnd()) {
    cases += xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("testcase") ? 1 : 0;
  }
  EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
  EXPECT_EQ(cases, 2);
}

}  // namespace
