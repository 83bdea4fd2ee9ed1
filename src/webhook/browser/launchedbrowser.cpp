#include "webhook/browser/launchedbrowser.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "webhook/browser/lastwords.h"

namespace Corvex::Webhook {

namespace {

constexpr int outputInterval = 1000;
constexpr qint64 outputLimit = 4 * 1024 * 1024;
constexpr qint64 outputTail = 8 * 1024;

/// The entry of a browser's environment that holds its directory and so marks all its processes.
const QString markName = QStringLiteral("CORVEX_BROWSER_DIRECTORY");

QString outputFileIn(const QString& directory) { return directory + QStringLiteral("/output.log"); }

QString whatToDoAboutTheDisplay() {
  return QStringLiteral(
      "Run this program on a desktop, set DISPLAY to a running X server, run it by xvfb-run, or leave out --headed.");
}

QString noDisplay() {
  return QStringLiteral("There is no display to show the browser's windows on: DISPLAY is not set. ") +
         whatToDoAboutTheDisplay();
}

bool hasDisplay() { return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"); }

QString noRoom() {
  return QStringLiteral(
             "No room for the browser's profile in '%1'. Make room there, or set TMPDIR to another directory.")
      .arg(QDir::tempPath());
}

QByteArray tailOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return {};
  }
  file.seek(std::max<qint64>(0, file.size() - outputTail));
  return file.read(outputTail);
}

}  // namespace

LaunchedBrowser::Start LaunchedBrowser::start(const QString& program, bool headed, const Preparation& prepare) {
  if (headed && !hasDisplay()) {
    return {nullptr, noDisplay()};
  }
  TemporaryDirectory::removeAbandoned(markName);
  auto directory = std::make_unique<TemporaryDirectory>();
  ChildCommand command;
  command.program = program;
  command.markName = markName;
  command.environment = {{markName, directory->path()}};
  command.outputFile = outputFileIn(directory->path());
  QFile output(command.outputFile);
  if (directory->path().isEmpty() || !output.open(QIODevice::WriteOnly) || !prepare(directory->path(), command)) {
    return {nullptr, noRoom()};
  }
  ChildProcess::Start started = ChildProcess::start(command);
  if (!started.process) {
    return {nullptr, started.error};
  }
  return {
      std::unique_ptr<LaunchedBrowser>(new LaunchedBrowser(std::move(directory), std::move(started.process), headed)),
      {}};
}

LaunchedBrowser::LaunchedBrowser(std::unique_ptr<TemporaryDirectory> directory, std::unique_ptr<ChildProcess> process,
                                 bool headed)
    : m_directory(std::move(directory)), m_process(std::move(process)), m_path(m_directory->path()), m_headed(headed) {
  connect(m_process.get(), &ChildProcess::ended, this, [this] { Q_EMIT lost(QStringLiteral("its process ended")); });
  connect(&m_outputTimer, &QTimer::timeout, this, &LaunchedBrowser::boundOutput);
  m_outputTimer.start(outputInterval);
}

void LaunchedBrowser::end() {
  if (m_directory->path().isEmpty()) {
    return;
  }
  m_outputTimer.stop();
  m_process->end();
  m_lastWords = lastWords(tailOf(outputFile()));
  m_directory->remove();
}

QString LaunchedBrowser::outputFile() const { return outputFileIn(m_path); }

QByteArray LaunchedBrowser::output() const {
  QFile file(outputFile());
  return file.open(QIODevice::ReadOnly) ? file.read(outputHead) : QByteArray();
}

QString LaunchedBrowser::explanation() const {
  const QString words = m_directory->path().isEmpty() ? m_lastWords : lastWords(tailOf(outputFile()));
  if (words.isEmpty()) {
    return {};
  }
  const bool hasEnd = QStringLiteral(".!?").contains(words.back());
  const QString sentence = QStringLiteral("Its last words: ") + words + (hasEnd ? QString() : QStringLiteral("."));
  const bool isAboutDisplay = m_headed && words.contains(QLatin1String("display"), Qt::CaseInsensitive);
  return isAboutDisplay ? sentence + QLatin1Char(' ') + whatToDoAboutTheDisplay() : sentence;
}

void LaunchedBrowser::boundOutput() {
  // The browser appends, so it goes on at the beginning.
  if (QFileInfo(outputFile()).size() > outputLimit) {
    QFile::resize(outputFile(), 0);
  }
}

}  // namespace Corvex::Webhook
