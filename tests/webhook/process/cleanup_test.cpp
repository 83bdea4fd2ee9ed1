#include <gtest/gtest.h>
#include <signal.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include "support/printing.h"

namespace {

struct Row {
  const char* way;
  int signal;
  int exitCode;
};

/// The processes that were started with this text somewhere in their environment.
QStringList processesThatKnow(const QString& text) {
  QStringList found;
  for (const QString& process : QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")}, QDir::Dirs)) {
    QFile environment(QStringLiteral("/proc/%1/environ").arg(process));
    if (environment.open(QIODevice::ReadOnly) && environment.readAll().contains(text.toUtf8())) {
      found << process;
    }
  }
  return found;
}

/// A program that runs a browser with its files in `temporary`, or where all have them.
class Probe {
public:
  /// `shell` says how "$0" is run.
  explicit Probe(const QString& shell, const QString& temporary = QDir::tempPath()) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TMPDIR"), temporary);
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(QStringLiteral("/bin/sh"),
                  {QStringLiteral("-c"), shell,
                   QCoreApplication::applicationDirPath() + QStringLiteral("/webhook_cleanup_probe")});
    EXPECT_TRUE(program.waitForReadyRead(30000));
    const QString line = QString::fromUtf8(program.readLine()).trimmed();
    browser = line.section(QLatin1Char(' '), 0, 0).toInt();
    directory = line.section(QLatin1Char(' '), 1);
    EXPECT_GT(browser, 1);
    EXPECT_FALSE(processesThatKnow(directory).isEmpty());
  }
  ~Probe() {
    program.kill();
    program.waitForFinished(30000);
  }

  void end(int signal) {
    kill(pid_t(program.processId()), signal);
    EXPECT_TRUE(program.waitForFinished(30000));
  }

  void expectNothingLeft() const {
    EXPECT_EQ(processesThatKnow(directory), QStringList());
    EXPECT_FALSE(QFileInfo::exists(directory)) << directory.toStdString();
  }

  QProcess program;
  pid_t browser = 0;
  QString directory;
};

class CleanupTest : public testing::TestWithParam<Row> {};

}  // namespace

TEST_P(CleanupTest, NoProcessAndNoDirectoryOutlivesTheProgram) {
  Probe probe(QStringLiteral("exec \"$0\" %1").arg(QString::fromLatin1(GetParam().way)));
  if (GetParam().signal) {
    probe.end(GetParam().signal);
  } else {
    probe.program.write("\n");
    EXPECT_TRUE(probe.program.waitForFinished(30000));
  }
  EXPECT_EQ(probe.program.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(probe.program.exitCode(), GetParam().exitCode);
  EXPECT_NE(kill(-probe.browser, 0), 0);
  probe.expectNothingLeft();
}

INSTANTIATE_TEST_SUITE_P(Ways, CleanupTest,
                         testing::Values(Row{"exit", 0, 7}, Row{"stuck", SIGINT, 130}, Row{"stuck", SIGTERM, 143},
                                         Row{"stuck", SIGHUP, 129}));

TEST(Cleanup, AReaderThatGoesAwayEndsNothingHalfway) {
  Probe probe(QStringLiteral("exec 3>&1; { \"$0\" print; echo $? >&3; } | head -n 1"));
  EXPECT_TRUE(probe.program.waitForFinished(30000));
  EXPECT_EQ(probe.program.readAll().trimmed(), QByteArray("8"));
  probe.expectNothingLeft();
}

TEST(Cleanup, TheNextStartRemovesWhatKilledProgramsLeftAndNothingElse) {
  const QTemporaryDir temporary;
  const QString stuck = QStringLiteral("exec \"$0\" stuck");
  Probe living(stuck, temporary.path());
  Probe killed(stuck, temporary.path());
  killed.end(SIGKILL);
  ASSERT_TRUE(QFileInfo::exists(killed.directory));

  Probe next(QStringLiteral("exec \"$0\" exit"), temporary.path());
  killed.expectNothingLeft();
  EXPECT_TRUE(QFileInfo::exists(living.directory));
  EXPECT_EQ(kill(-living.browser, 0), 0);
  living.end(SIGTERM);
  living.expectNothingLeft();
}
