#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cerrno>
#include <csignal>

#include "shared/awaiting.h"
#include "support/environment.h"
#include "support/files.h"
#include "support/freshprocess.h"
#include "support/printing.h"
#include "webhook/process/childprocess.h"
#include "webhook/process/temporarydirectory.h"
#include "webhook/protocol/transport/pipetransport.h"

using namespace Corvex;
using namespace Corvex::Webhook;

namespace {

/// A shell that runs `script` with its files in a directory of its own, and a transport to its descriptors 3 and 4.
struct Shell {
  explicit Shell(const QString& script) {
    PipeTransport::ChildEnds ends;
    transport = PipeTransport::create(&ends);
    ChildCommand command;
    command.program = QStringLiteral("/bin/sh");
    command.arguments = QStringList{QStringLiteral("-c"), script};
    command.environment = {{QStringLiteral("SHELL_TEST_DIRECTORY"), directory.path()}};
    command.markName = QStringLiteral("SHELL_TEST_DIRECTORY");
    command.outputFile = directory.filePath(QStringLiteral("output"));
    command.descriptors = {{ends.input.get(), 3}, {ends.output.get(), 4}};
    start = ChildProcess::start(command);
  }

  TemporaryDirectory directory;
  std::unique_ptr<PipeTransport> transport;
  ChildProcess::Start start;
};

bool exists(qint64 process) { return kill(pid_t(process), 0) == 0 || errno != ESRCH; }

}  // namespace

TEST(PipeTransport, CarriesMessagesOfAnySizeInOrder) {
  Shell echo(QStringLiteral("exec cat <&3 >&4"));
  ASSERT_TRUE(echo.start.process) << echo.start.error.toStdString();
  const QList<QByteArray> messages{"one", "", QByteArray(5 * 1024 * 1024, 'x'), "last"};
  QList<QByteArray> received;
  Pending all;
  QObject::connect(echo.transport.get(), &Transport::messageReceived, [&](const QByteArray& message) {
    received.append(message);
    if (received.size() == messages.size()) {
      all.complete();
    }
  });
  for (const QByteArray& message : messages) {
    echo.transport->send(message);
  }

  EXPECT_EQ(waitFor(all, QDeadlineTimer(10000)), WaitResult::Complete);
  EXPECT_TRUE(received == messages);
}

TEST(PipeTransport, TellsTheEndBehindTheLastMessage) {
  Shell shell(QStringLiteral("printf 'bye\\0half' >&4"));
  QStringList seen;
  QObject::connect(shell.transport.get(), &Transport::messageReceived,
                   [&](const QByteArray& message) { seen << QString::fromLatin1(message); });
  QObject::connect(shell.transport.get(), &Transport::closed, [&] { seen << QStringLiteral("closed"); });

  EXPECT_TRUE(comes(shell.transport.get(), &Transport::closed));
  EXPECT_EQ(seen, QStringList({QStringLiteral("bye"), QStringLiteral("closed")}));
  shell.transport->send("into the void");
}

TEST(ChildProcess, SaysWhyAProgramDoesNotStart) {
  ChildCommand command;
  command.program = QStringLiteral("/no/such/program");
  const ChildProcess::Start start = ChildProcess::start(command);
  EXPECT_FALSE(start.process);
  EXPECT_EQ(start.error,
            QStringLiteral("The program '/no/such/program' could not be started: No such file or directory."));
}

TEST(ChildProcess, TellsItsOwnEnd) {
  Shell shell(QStringLiteral("exit 0"));
  EXPECT_TRUE(comes(shell.start.process.get(), &ChildProcess::ended));
}

TEST(ChildProcess, EndTakesAllDescendantsAlong) {
  // One child in the group, and one that left it.
  Shell shell(QStringLiteral("sleep 1000 & echo $! >pid1; setsid sh -c 'echo $$ >pid2; exec sleep 1000' & "
                             "printf 'ready\\0' >&4; wait")
                  .replace(QStringLiteral(">pid"), QStringLiteral(">$SHELL_TEST_DIRECTORY/pid")));
  ASSERT_TRUE(comes(shell.transport.get(), &Transport::messageReceived));
  const qint64 leader = shell.start.process->pid();
  QFile memberFile(shell.directory.filePath(QStringLiteral("pid1")));
  ASSERT_TRUE(memberFile.open(QIODevice::ReadOnly));
  const qint64 member = memberFile.readAll().trimmed().toLongLong();
  ASSERT_TRUE(exists(leader) && exists(member));

  shell.start.process->end();
  EXPECT_FALSE(exists(leader));
  EXPECT_FALSE(exists(member));
  QFile strayFile(shell.directory.filePath(QStringLiteral("pid2")));
  if (strayFile.open(QIODevice::ReadOnly)) {
    EXPECT_FALSE(exists(strayFile.readAll().trimmed().toLongLong()));
  }
}

TEST(TemporaryDirectory, GoesWithItsObject) {
  QString path;
  {
    const TemporaryDirectory directory;
    path = directory.path();
    QFile file(directory.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(QFile::link(QStringLiteral("/no/where"), directory.filePath(QStringLiteral("dangling"))));
    EXPECT_EQ(QFileInfo(path).permissions() & (QFile::ReadOther | QFile::ReadGroup), QFile::Permissions());
  }
  EXPECT_FALSE(path.isEmpty());
  EXPECT_FALSE(QFileInfo::exists(path));
}

TEST(TemporaryDirectory, OnlyThoseOfThisUsersDeadProgramsAreRemoved) {
  const QTemporaryDir temporary;
  const QDir folder(temporary.path());
  const TestSupport::ScopedVariable variable("TMPDIR", temporary.path().toLocal8Bit());
  const auto abandon = [] { return TestSupport::inFreshProcess([] { return (new TemporaryDirectory)->path(); }); };
  const TemporaryDirectory living;
  const QString dead = abandon();
  const QString linked = abandon();
  const QString others = abandon();
  QTemporaryDir elsewhere;
  ASSERT_TRUE(QDir().rename(linked, elsewhere.filePath(QStringLiteral("target"))));
  ASSERT_TRUE(QFile::link(elsewhere.filePath(QStringLiteral("target")), linked));
  const bool canGiveAway = chown(QFile::encodeName(others).constData(), 12345, 12345) == 0;
  ASSERT_TRUE(folder.mkpath(QStringLiteral("corvexweb-backup/kept")));
  ASSERT_TRUE(TestSupport::writeFile(folder.filePath(QStringLiteral("corvexweb-report")), "kept"));
  ASSERT_TRUE(QFileInfo::exists(dead));

  TemporaryDirectory::removeAbandoned(QStringLiteral("MARK"));
  EXPECT_FALSE(QFileInfo::exists(dead));
  for (const QString& kept : {living.path(), linked, folder.filePath(QStringLiteral("corvexweb-backup/kept")),
                              folder.filePath(QStringLiteral("corvexweb-report"))}) {
    EXPECT_TRUE(QFileInfo::exists(kept)) << kept.toStdString();
  }
  EXPECT_EQ(QFileInfo::exists(others), canGiveAway);
}
