#include "webhook/cli/output.h"

#include "shared/textoutput.h"
#include "shared/visibletext.h"
#include "webhook/cli/commandline.h"

#include <QCoreApplication>
#include <QThread>

#include <fcntl.h>
#include <unistd.h>

namespace Corvex::Webhook {

namespace {

void logVisibly(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  const QString message = qFormatLogMessage(type, context, text);
  // An empty one stands for a message that the pattern leaves out.
  if (!message.isNull()) {
    printError(message + QLatin1Char('\n'));
  }
}

std::function<void()>& roomMaker() {
  static std::function<void()> maker;
  return maker;
}

}  // namespace

int printOut(const QString& text, int exitCode) {
  const std::error_code error = writeText(stdout, text);
  return error ? outputFailed(error, exitCode) : exitCode;
}

int outputFailed(const std::error_code& error, int exitCode) {
  if (error != std::errc::broken_pipe) {
    printError(
        QStringLiteral("corvexweb: The output cannot be written: %1.\n").arg(QString::fromStdString(error.message())));
  }
  return exitCode == ExitCode::Success ? ExitCode::Failed : exitCode;
}

void printError(const QString& text) {
  // Other threads log, too.
  const QCoreApplication* const program = QCoreApplication::instance();
  if (roomMaker() && program && program->thread() == QThread::currentThread()) {
    roomMaker()();
  }
  writeText(stderr, visibleText(text));
}

void beforeErrors(const std::function<void()>& makeRoom) { roomMaker() = makeRoom; }

void holdClosedStreams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (fcntl(stream, F_GETFD) < 0) {
      open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
  }
}

void makeLogVisible() { qInstallMessageHandler(logVisibly); }

}  // namespace Corvex::Webhook
