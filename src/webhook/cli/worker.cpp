#include "webhook/cli/worker.h"

#include "webhook/cli/workerrequest.h"

#include <cerrno>
#include <cstring>

namespace Corvex::Webhook {

namespace {

const QString markName = QStringLiteral("CORVEX_WORKER_DIRECTORY");

// A browser that logs without end should not fill the terminal.
const int mostWords = 256 << 10;

// A worker that has told all closes its browser, and ends.
const int patienceMs = 15000;

}  // namespace

Worker::Worker(const QString& program, const QStringList& arguments, const Scripting::ScriptChoice& script,
               QIODevice* file)
    : m_report(script, file) {
  m_startError = start(program, arguments);
}

QString Worker::start(const QString& program, const QStringList& arguments) {
  FileDescriptor eventEnd;
  FileDescriptor outputEnd;
  m_events = PipeReader::create([this](const QByteArray& piece) { m_report.take(piece); }, &eventEnd);
  m_output = PipeReader::create([this](const QByteArray& piece) { takeWords(piece); }, &outputEnd);
  if (!m_events || !m_output || m_directory.path().isEmpty()) {
    return QStringLiteral("No process could be started for the script: %1.")
        .arg(QString::fromLocal8Bit(std::strerror(errno)));
  }
  QObject::connect(m_events.get(), &PipeReader::ended, [this] { m_silence.start(); });
  ChildCommand command;
  command.program = program;
  command.arguments = arguments;
  // Its files go with it, even if it is killed.
  command.environment = {{markName, m_directory.path()}, {QStringLiteral("TMPDIR"), m_directory.path()}};
  command.markName = markName;
  command.outputDescriptor = outputEnd.get();
  command.descriptors = {{eventEnd.get(), workerEventDescriptor}};
  command.cleansUp = true;
  ChildProcess::Start started = ChildProcess::start(command);
  m_process = std::move(started.process);
  return started.error;
}

void Worker::removeAbandoned() { TemporaryDirectory::removeAbandoned(markName); }

bool Worker::hasEnded() {
  return !m_process || !m_report.fault().isEmpty() || m_process->howEnded() ||
         (m_silence.isValid() && m_silence.elapsed() > patienceMs);
}

Scripting::ScriptResult Worker::finish() {
  if (!m_process) {
    return m_report.finish(m_startError);
  }
  const std::optional<ChildEnd> end = m_process->howEnded();
  m_process->end();
  m_exitCode = end ? end->exitCode : std::nullopt;
  if (m_report.fault().isEmpty()) {
    m_events->drain();
  }
  m_output->drain();
  return m_report.finish(QStringLiteral("The process of the script %1 before the script's end.")
                             .arg(end ? end->text() : QStringLiteral("stopped telling of it")));
}

void Worker::takeWords(const QByteArray& piece) {
  const int room = mostWords - m_words.size();
  m_isCut = m_isCut || piece.size() > room;
  m_words += piece.left(room);
}

QString Worker::words() const {
  const QString words = QString::fromUtf8(m_words) + (m_isCut ? QStringLiteral("\n(more was left out)") : QString());
  return words.isEmpty() || words.endsWith(QLatin1Char('\n')) ? words : words + QLatin1Char('\n');
}

}  // namespace Corvex::Webhook
