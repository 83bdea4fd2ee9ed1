#include <gtest/gtest.h>
#include <signal.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

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

class CleanupTest : public testing::TestWithParam<Row> {};

}  // namespace

TEST_P(CleanupTest, NoProcessAndNoDirectoryOutlivesTheProgram) {
  QProcess probe;
  probe.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  probe.start(QCoreApplication::applicationDirPath() + QStringLiteral("/webhook_cleanup_probe"),
              {QString::fromLatin1(GetParam().way)});
  ASSERT_TRUE(probe.waitForReadyRead(30000));
  const QString line = QString::fromUtf8(probe.readLine()).trimmed();
  const pid_t browser = line.section(QLatin1Char(' '), 0, 0).toInt();
  const QString directory = line.section(QLatin1Char(' '), 1);
  ASSERT_GT(browser, 1);
  EXPECT_FALSE(processesThatKnow(directory).isEmpty());
  if (GetParam().signal) {
    kill(pid_t(probe.processId()), GetParam().signal);
  } else {
    probe.write("\n");
  }
  ASSERT_TRUE(probe.waitForFinished(30000));

  EXPECT_EQ(probe.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(probe.exitCode(), GetParam().exitCode);
  EXPECT_NE(kill(-browser, 0), 0);
  EXPECT_EQ(processesThatKnow(directory), QStringList());
  EXPECT_FALSE(QFileInfo::exists(directory)) << directory.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Ways, CleanupTest,
                         testing::Values(Row{"exit", 0, 7}, Row{"stuck", SIGINT, 130}, Row{"stuck", SIGTERM, 143},
                                         Row{"stuck", SIGHUP, 129}));
