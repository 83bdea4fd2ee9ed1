#include <gtest/gtest.h>
#include <signal.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>

namespace {

struct Row {
  const char* way;
  int signal;
  int exitCode;
};

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
  if (GetParam().signal)
    kill(pid_t(probe.processId()), GetParam().signal);
  ASSERT_TRUE(probe.waitForFinished(30000));

  EXPECT_EQ(probe.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(probe.exitCode(), GetParam().exitCode);
  EXPECT_NE(kill(-browser, 0), 0);
  EXPECT_FALSE(QFileInfo::exists(directory)) << directory.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Ways, CleanupTest,
                         testing::Values(Row{"exit", 0, 7}, Row{"stuck", SIGINT, 130}, Row{"stuck", SIGTERM, 143},
                                         Row{"stuck", SIGHUP, 129}));
