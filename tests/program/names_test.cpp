// corvexweb names: what it lists and sums up.

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "support/printing.h"
#include "support/programrun.h"

namespace {

using TestSupport::ProgramResult;
using TestSupport::ProgramRun;

const char* const page =
    "<!DOCTYPE html><title>t</title><a href='#'>Save &amp; go <b>on</b></a><input name=q><input name=q>"
    "<x-h><template shadowrootmode=open><i title=a></i><i title=a></i></template></x-h>";

ProgramResult namesOf(ProgramRun& program, const QString& html, const QStringList& options = {}) {
  program.write(QStringLiteral("page.html"), html);
  return program.run(QStringList{QStringLiteral("names")} + options + QStringList{QStringLiteral("page.html")});
}

TEST(Names, ListsWhatIsNotFoundAndSumsUp) {
  ProgramRun program;
  const ProgramResult result = namesOf(program, QString::fromUtf8(page));
  EXPECT_EQ(result.exitCode, 0) << qPrintable(result.errors);
  EXPECT_EQ(result.errors, QString());
  const QStringList lines = result.output.split(QLatin1Char('\n'));
  EXPECT_TRUE(lines.first().startsWith(QLatin1String(
      "by rule  named        {container={visible='true' tagName='X-H'} visible='true' tagName='I' title='a'}")))
      << qPrintable(result.output);
  EXPECT_EQ(lines.value(1), QString()) << "One element only is not found.";
  EXPECT_TRUE(result.output.contains(QLatin1String("control             2       2 100.0 %")))
      << qPrintable(result.output);
  EXPECT_EQ(program.leftovers(), QStringList());
}

TEST(Names, ListsAllOnDemand) {
  ProgramRun program;
  const ProgramResult result = namesOf(program, QString::fromUtf8(page), {QStringLiteral("--all")});
  for (const char* line : {"found    control      {visible='true' tagName='INPUT' name='q' type='text' occurrence='2'} "
                           " <input name=\"q\">",
                           "as link  link         {visible='true' tagName='A' simplifiedInnerText='Save & go on'}  <b>",
                           "found    hierarchical DOCUMENT.HTML1.BODY1  <body>"}) {
    EXPECT_TRUE(result.output.contains(QLatin1String(line))) << line << "\nin\n" << qPrintable(result.output);
  }
}

TEST(Names, WritesJson) {
  ProgramRun program;
  const ProgramResult result =
      namesOf(program, QString::fromUtf8(page), {QStringLiteral("--json"), QStringLiteral("--all")});
  const QJsonObject report = QJsonDocument::fromJson(result.output.toUtf8()).object();
  const QJsonObject all = report[QStringLiteral("summary")].toObject()[QStringLiteral("all")].toObject();
  EXPECT_EQ(all[QStringLiteral("elements")].toInt(), report[QStringLiteral("elements")].toArray().size());
  EXPECT_EQ(all[QStringLiteral("lostByRule")].toInt(), 1);
  EXPECT_EQ(all[QStringLiteral("lost")].toInt(), 0);
}

TEST(Names, ALostElementIsAFailure) {
  ProgramRun program;
  const ProgramResult result =
      namesOf(program, QStringLiteral("<p></p><script>var n = 0; Object.defineProperty("
                                      "document.getElementsByTagName('p')[0], 'title',"
                                      "{ get: function () { return 't' + ++n; } });</script>"));
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_TRUE(result.output.startsWith(QLatin1String("LOST     named"))) << qPrintable(result.output);
}

TEST(Names, DismissesDialogsOfThePage) {
  ProgramRun program;
  const ProgramResult result =
      namesOf(program,
              QStringLiteral("<script>onload = function () { setTimeout(function () { alert(1); alert(2); }, 0); "
                             "};</script><p>x</p>"),
              {QStringLiteral("--wait"), QStringLiteral("0.3")});
  EXPECT_EQ(result.exitCode, 0) << qPrintable(result.errors);
}

}  // namespace
