#include "support/programrun.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

namespace TestSupport {

namespace {

const int runTimeoutMs = 90000;
const int checkIntervalMs = 20;

/// Those whose file of this name below /proc holds the text.
QList<qint64> processesWith(const char* fileName, const QByteArray& text) {
  QList<qint64> processes;
  for (const QString& entry : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
    QFile file(QStringLiteral("/proc/%1/%2").arg(entry, QLatin1String(fileName)));
    bool isNumber = false;
    const qint64 id = entry.toLongLong(&isNumber);
    if (isNumber && file.open(QIODevice::ReadOnly) && file.readAll().contains(text)) {
      processes << id;
    }
  }
  return processes;
}

}  // namespace

ProgramRun::ProgramRun() : m_environment(QProcessEnvironment::systemEnvironment()) {
  m_environment.insert(QStringLiteral("TMPDIR"), m_temporary.path());
  m_environment.insert(QStringLiteral("CORVEX_USER_SETTINGS_DIR"), m_folder.path());
  m_environment.insert(QStringLiteral("XDG_CACHE_HOME"), m_folder.filePath(QStringLiteral(".cache")));
  m_process.setWorkingDirectory(m_folder.path());
}

QString ProgramRun::write(const QString& name, const QString& text) {
  const QString path = m_folder.filePath(name);
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) {
    file.write(text.toUtf8());
  }
  return path;
}

QStringList ProgramRun::withBrowser(const QStringList& arguments) const {
  const QString browser = m_environment.value(QStringLiteral("CORVEX_TEST_BROWSER"));
  const QStringList browserCommands = {QStringLiteral("run"), QStringLiteral("names"), QStringLiteral("tree"),
                                       QStringLiteral("record"), QStringLiteral("pick")};
  if (browserCommands.contains(arguments.value(0)) && !browser.isEmpty() &&
      !arguments.contains(QStringLiteral("--browser"))) {
    return QStringList{arguments.first(), QStringLiteral("--browser"), browser} + arguments.mid(1);
  }
  return arguments;
}

void ProgramRun::start(const QStringList& arguments) {
  m_process.setProcessEnvironment(m_environment);
  m_process.start(QStringLiteral(CORVEX_PROGRAM), withBrowser(arguments));
}

void ProgramRun::serveUntil(const std::function<bool()>& isDone) {
  QEventLoop loop;
  QTimer limit;
  QTimer check;
  QObject::connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
  QObject::connect(&check, &QTimer::timeout, &loop, [&] {
    m_output += QString::fromUtf8(m_process.readAllStandardOutput());
    if (isDone() || hasEnded()) {
      loop.quit();
    }
  });
  limit.start(runTimeoutMs);
  check.start(checkIntervalMs);
  loop.exec();
  m_output += QString::fromUtf8(m_process.readAllStandardOutput());
}

bool ProgramRun::waitForOutput(const QString& text) {
  return waitUntil([&] { return m_output.contains(text); });
}

bool ProgramRun::waitUntil(const std::function<bool()>& condition) {
  serveUntil(condition);
  return condition();
}

ProgramResult ProgramRun::finish() {
  ProgramResult result;
  serveUntil([] { return false; });
  if (hasEnded()) {
    result.exitCode = m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -2;
  } else {
    m_process.kill();
    m_process.waitForFinished();
  }
  result.output = m_output + QString::fromUtf8(m_process.readAllStandardOutput());
  result.errors = QString::fromUtf8(m_process.readAllStandardError());
  m_output.clear();
  return result;
}

ProgramResult ProgramRun::run(const QStringList& arguments) {
  start(arguments);
  return finish();
}

ProgramResult ProgramRun::runInShell(const QString& line, const QStringList& arguments) {
  m_process.setProcessEnvironment(m_environment);
  const QStringList shell = {QStringLiteral("-c"), line, QStringLiteral("sh"), QStringLiteral(CORVEX_PROGRAM)};
  m_process.start(QStringLiteral("/bin/sh"), shell + withBrowser(arguments));
  return finish();
}

QStringList ProgramRun::leftovers() const {
  return QDir(m_temporary.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

QList<qint64> ProgramRun::browserProcesses() const { return processesWith("cmdline", m_temporary.path().toUtf8()); }

QList<qint64> ProgramRun::processes() const { return processesWith("environ", m_temporary.path().toUtf8()); }

bool ProgramRun::eventually(const std::function<bool()>& condition) {
  QEventLoop loop;
  QTimer limit;
  QTimer check;
  QObject::connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
  QObject::connect(&check, &QTimer::timeout, &loop, [&] {
    if (condition()) {
      loop.quit();
    }
  });
  limit.start(runTimeoutMs);
  check.start(checkIntervalMs);
  loop.exec();
  return condition();
}

}  // namespace TestSupport
