// Test scripts against a site of small pages: one script is one test. A script's leading comment may hold, a line each:
//   @settings KEY=value       for the user's webwrapper.ini
//   @options OPTION...        for the program; SITE stands for the site's host and port
//   @map :NAME REAL NAME      an entry of objects.map
//   @file TEXT NAME           a file beside the script
//   @screen WIDTH HEIGHT      a screen of its own
//   @exit CODE TEXT           the exit code that is expected, and what the output then holds
//   @failed NUMBER            of checks, 0 without it
//   @hidden TEXT              what the output never holds
//   @not BROWSER REASON       the browser cannot do it

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QUrl>

#include <memory>

#include "e2e/pagesite.h"
#include "support/files.h"
#include "support/printing.h"
#include "support/virtualscreen.h"

namespace {

using TestSupport::PageSite;
using TestSupport::ProgramResult;
using TestSupport::readFile;
using TestSupport::VirtualScreen;

QStringList marks(const QString& script, const char* name) {
  const QRegularExpression line(QStringLiteral("^// @%1 (.*)$").arg(QLatin1String(name)),
                                QRegularExpression::MultilineOption);
  QStringList values;
  for (auto matches = line.globalMatch(script); matches.hasNext();) {
    values << matches.next().captured(1);
  }
  return values;
}

void writeSettings(PageSite& site, const QStringList& settings) {
  const QString text = QStringLiteral("[General]\n") + settings.join(QLatin1Char('\n')) + QLatin1Char('\n');
  site.program().write(QStringLiteral("ver1/webwrapper.ini"), text);
}

void writeObjectMap(PageSite& site, const QStringList& entries) {
  QString text;
  for (const QString& entry : entries) {
    const int blank = entry.indexOf(QLatin1Char(' '));
    text += entry.left(blank) + QLatin1Char('\t') + entry.mid(blank + 1) + QLatin1Char('\n');
  }
  site.program().write(QStringLiteral("objects.map"), text);
}

void writeFiles(PageSite& site, const QStringList& files) {
  for (const QString& file : files) {
    site.program().write(file.section(QLatin1Char(' '), 1), file.section(QLatin1Char(' '), 0, 0));
  }
}

std::unique_ptr<VirtualScreen> screenFor(PageSite& site, const QStringList& sizes) {
  if (sizes.isEmpty()) {
    return nullptr;
  }
  const QStringList size = sizes.first().split(QLatin1Char(' '));
  auto screen = std::make_unique<VirtualScreen>(QSize(size.value(0).toInt(), size.value(1).toInt()));
  EXPECT_EQ(screen->error(), QString());
  site.program().setEnvironment(QStringLiteral("DISPLAY"), QString::fromLatin1(screen->display()));
  return screen;
}

std::vector<std::string> scriptsIn(const char* folder) {
  std::vector<std::string> names;
  for (const QString& file : QDir(QLatin1String(folder)).entryList({QStringLiteral("*.js")}, QDir::Files, QDir::Name)) {
    names.push_back(file.left(file.size() - 3).toStdString());
  }
  return names;
}

std::string nameOf(const testing::TestParamInfo<std::string>& info) {
  return QString::fromStdString(info.param).remove(QRegularExpression(QStringLiteral("\\W"))).toStdString();
}

class Scripts : public testing::TestWithParam<std::string> {};

TEST_P(Scripts, Pass) {
  const QString name = QString::fromStdString(GetParam());
  const QString script = QString::fromUtf8(readFile(QStringLiteral(CORVEX_TEST_SOURCE "/e2e/scripts/%1.js").arg(name)));
  for (const QString& exception : marks(script, "not")) {
    if (exception.startsWith(TestSupport::browserUnderTest() + QLatin1Char(' '))) {
      GTEST_SKIP() << qPrintable(exception);
    }
  }
  PageSite site;
  writeSettings(site, marks(script, "settings"));
  writeObjectMap(site, marks(script, "map"));
  writeFiles(site, marks(script, "file"));
  const std::unique_ptr<VirtualScreen> screen = screenFor(site, marks(script, "screen"));
  site.write(QStringLiteral("test.js"), script);
  const QString place = QUrl(site.server().url(QString())).authority();
  const QStringList options = marks(script, "options")
                                  .join(QLatin1Char(' '))
                                  .replace(QLatin1String("SITE"), place)
                                  .split(QLatin1Char(' '), Qt::SkipEmptyParts);
  const ProgramResult result = site.program().run(site.arguments({QStringLiteral("test.js")}, options));
  const QString exit = marks(script, "exit").value(0, QStringLiteral("0 0 failed;"));
  EXPECT_EQ(result.exitCode, exit.section(QLatin1Char(' '), 0, 0).toInt());
  EXPECT_TRUE(result.output.contains(exit.section(QLatin1Char(' '), 1)));
  const QString failed = marks(script, "failed").value(0, QStringLiteral("0"));
  EXPECT_TRUE(result.output.contains(QRegularExpression(QStringLiteral(" checks?, %1 failed; ").arg(failed))))
      << "a check failed";
  for (const QString& hidden : marks(script, "hidden")) {
    EXPECT_FALSE((result.output + result.errors).contains(hidden)) << qPrintable(hidden);
  }
  site.expectNothingLeft();
  if (HasFailure()) {
    ADD_FAILURE() << qPrintable(result.output + result.errors);
  }
}

INSTANTIATE_TEST_SUITE_P(EndToEnd, Scripts, testing::ValuesIn(scriptsIn(CORVEX_TEST_SOURCE "/e2e/scripts")), nameOf);

class Examples : public testing::TestWithParam<std::string> {};

TEST_P(Examples, PassUnderAStrictPolicy) {
  PageSite site;
  QString script = QString::fromUtf8(readFile(
      QStringLiteral(CORVEX_TEST_SOURCE "/../examples/shop/tests/%1.js").arg(QString::fromStdString(GetParam()))));
  ASSERT_TRUE(script.contains(QLatin1String("\"../index.html\"")));
  script.replace(QLatin1String("\"../index.html\""), QLatin1String("SITE + \"/shop/index.html\""));
  const QString file = QString::fromStdString(GetParam()) + QStringLiteral(".js");
  site.write(file, script);
  const ProgramResult result = site.program().run(site.arguments({file}));
  EXPECT_EQ(result.exitCode, 0) << qPrintable(result.output + result.errors);
  site.expectNothingLeft();
}

INSTANTIATE_TEST_SUITE_P(EndToEnd, Examples, testing::ValuesIn(scriptsIn(CORVEX_TEST_SOURCE "/../examples/shop/tests")),
                         nameOf);

}  // namespace
