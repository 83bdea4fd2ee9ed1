// How a run is controlled: which scripts it takes, when it ends, and what a terminal shows of it; no browser is needed.

#include <gtest/gtest.h>

#include <fcntl.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <QDir>
#include <QRegularExpression>

#include "support/printing.h"
#include "support/programrun.h"

namespace {

using TestSupport::ProgramResult;
using TestSupport::ProgramRun;

QStringList withRun(const QStringList& arguments) { return QStringList{QStringLiteral("run")} + arguments; }

TEST(RunControl, ListNamesWhatWouldRunAndRunsNothing) {
  ProgramRun program;
  program.write(QStringLiteral("all/a\u202e.js"), QStringLiteral("test.log('ran');"));
  program.write(QStringLiteral("all/tests.js"), QStringLiteral("function setUp() {}\nfunction testPay() {}\n"
                                                               "function testLogin() {}\nfunction payee() {}\n"));
  const ProgramResult all = program.run(withRun({"--list", "--junit", "out.xml", "all"}));
  EXPECT_EQ(all.exitCode, 0);
  EXPECT_EQ(all.output, QStringLiteral("all/a\\u202e.js\nall/tests.js\n  testPay()\n  testLogin()\n"));
  EXPECT_FALSE(QFileInfo::exists(program.folder() + QStringLiteral("/out.xml")));
  EXPECT_EQ(program.run(withRun({"--list", "--filter", "login", "all"})).output,
            QStringLiteral("all/tests.js\n  testLogin()\n"));
}

class LastFailed : public testing::Test {
protected:
  LastFailed() {
    write("a.js", true);
    write("b.js", true);
    write("c.js", true);
  }
  void write(const char* name, bool passes) {
    program.write(QLatin1String(name), QStringLiteral("test.verify(%1);").arg(passes ? 1 : 0));
  }
  QStringList listed() {
    const ProgramResult result = program.run(withRun({"--last-failed", "--list", "."}));
    EXPECT_EQ(result.exitCode, 0);
    notice = result.errors;
    return result.output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  }
  QFileInfoList noted() const {
    return QDir(program.folder() + QStringLiteral("/.cache/corvexweb/last-failed")).entryInfoList(QDir::Files);
  }

  ProgramRun program;
  QString notice;
};

TEST_F(LastFailed, RunsWhatFailedWhenItLastRan) {
  const QStringList all{QStringLiteral("a.js"), QStringLiteral("b.js"), QStringLiteral("c.js")};
  EXPECT_EQ(listed(), all);
  EXPECT_EQ(notice, QStringLiteral("corvexweb run: None of the scripts failed when it last ran. All of them run.\n"));
  EXPECT_EQ(program.run(withRun({"."})).exitCode, 0);
  EXPECT_EQ(noted().size(), 0);

  write("a.js", false);
  write("c.js", false);
  EXPECT_EQ(program.run(withRun({"."})).exitCode, 1);
  EXPECT_EQ(listed(), QStringList({all[0], all[2]}));
  EXPECT_EQ(notice, QString());
  write("a.js", true);
  // What does not run stays what it was.
  EXPECT_EQ(program.run(withRun({"--last-failed", "--stop-after", "1", "a.js", "b.js"})).exitCode, 0);
  EXPECT_EQ(listed(), QStringList(all[2]));
  QFile::remove(program.folder() + QStringLiteral("/c.js"));
  EXPECT_EQ(listed(), all.mid(0, 2));
}

TEST_F(LastFailed, ADamagedFileIsToldAndReplaced) {
  write("b.js", false);
  program.run(withRun({"."}));
  ASSERT_EQ(noted().size(), 1);
  QFile file(noted().first().filePath());
  for (const QByteArray& content : {QByteArray("{\"failed\": 1"), QByteArray("\0", 1), QByteArray(17 << 20, '[')}) {
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    EXPECT_EQ(listed().size(), 3);
    EXPECT_TRUE(notice.startsWith(QLatin1String("corvexweb run: Which scripts failed last cannot be read from '")))
        << qPrintable(notice);
  }
  program.run(withRun({"."}));
  EXPECT_EQ(listed(), QStringList(QStringLiteral("b.js")));
}

/// What a terminal of this width gets.
QString shown(ProgramRun& program, int columns, const QStringList& arguments) {
  const int terminal = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
  grantpt(terminal);
  unlockpt(terminal);
  // Kept open, so that what was written can be read when the program has ended.
  const int end = open(ptsname(terminal), O_RDWR | O_NOCTTY);
  winsize size = {24, static_cast<unsigned short>(columns), 0, 0};
  ioctl(terminal, TIOCSWINSZ, &size);
  program.runInShell(QStringLiteral("\"$@\" > %1").arg(QString::fromLatin1(ptsname(terminal))), arguments);
  char buffer[65536];
  const ssize_t count = read(terminal, buffer, sizeof buffer);
  close(end);
  close(terminal);
  return QString::fromUtf8(buffer, static_cast<int>(std::max<ssize_t>(count, 0)));
}

TEST(Terminal, ShowsALineOfProgressAndColoursWhereItHasThem) {
  ProgramRun program;
  program.write(QStringLiteral("long.js"), QStringLiteral("test.log('one'); pause(Number(script.arguments.time));"));
  program.write(QStringLiteral("b\u202e.js"), QStringLiteral("test.verify(false);"));
  const QStringList arguments = withRun({"--arg", "time=0.01", "long.js", "b\u202e.js"});
  program.setEnvironment(QStringLiteral("NO_COLOR"), QString());
  program.setEnvironment(QStringLiteral("TERM"), QStringLiteral("xterm"));
  const QString wide = shown(program, 80, withRun({"--arg", "time=1.1", "long.js", "b\u202e.js"}));
  const QString erased = QStringLiteral("\r\u001b[K");
  EXPECT_TRUE(
      wide.startsWith(QStringLiteral("long.js\r\n[1/2] 0:00 long.js") + erased + QStringLiteral("  log     one\r\n")))
      << qPrintable(wide);
  EXPECT_TRUE(wide.contains(QStringLiteral("[1/2] 0:01 long.js") + erased)) << qPrintable(wide);
  EXPECT_TRUE(wide.contains(QStringLiteral("[2/2] 0:01 b\\u202e.js") + erased)) << qPrintable(wide);
  EXPECT_TRUE(wide.contains(QStringLiteral("\u001b[31mFAILED b\\u202e.js"))) << qPrintable(wide);
  // Nothing of it is left.
  EXPECT_EQ(wide.count(QStringLiteral("/2] ")), wide.count(erased));
  EXPECT_TRUE(wide.endsWith(QStringLiteral("s\u001b[0m\r\n"))) << qPrintable(wide);

  const QString narrow = shown(program, 14, arguments);
  EXPECT_TRUE(narrow.contains(QStringLiteral("[1/2] 0:00 lo") + erased)) << qPrintable(narrow);

  program.setEnvironment(QStringLiteral("NO_COLOR"), QStringLiteral("1"));
  const QString plain = shown(program, 80, arguments);
  EXPECT_TRUE(plain.contains(erased + QStringLiteral("FAILED b"))) << qPrintable(plain);
  program.setEnvironment(QStringLiteral("NO_COLOR"), QString());
  program.setEnvironment(QStringLiteral("TERM"), QStringLiteral("dumb"));
  const QString dumb = shown(program, 80, arguments);
  EXPECT_TRUE(dumb.contains(QStringLiteral("FAILED b"))) << qPrintable(dumb);
  EXPECT_FALSE(dumb.contains(QLatin1Char('\u001b')) || dumb.contains(QStringLiteral("/2]"))) << qPrintable(dumb);
}

}  // namespace
