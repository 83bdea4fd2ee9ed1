#include "webhook/cli/recordcommand.h"

#include "corvexhook/inspector.h"
#include "shared/visibletext.h"
#include "shared/wait.h"
#include "webhook/cli/browseroptions.h"
#include "webhook/cli/commandline.h"
#include "webhook/cli/commandoptions.h"
#include "webhook/cli/output.h"
#include "webhook/process/cleanup.h"
#include "webhook/recorder/actrecorder.h"
#include "webhook/recorder/recordingfiles.h"
#include "webhook/run/browsercontrol.h"
#include "webhook/run/pictures.h"
#include "wrappers/web/object/webobject.h"
#include "wrappers/web/object/wraphtmlobject.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

#include <atomic>
#include <limits>

namespace Corvex::Webhook {

namespace {

const QCommandLineOption outputOption({QStringLiteral("o"), QStringLiteral("output")},
                                      QStringLiteral("Write the script to this file, too."), QStringLiteral("file"));
const QCommandLineOption objectMapOption(
    QStringLiteral("object-map"),
    QStringLiteral("Use the symbolic names of this file, and add to it those of new objects."), QStringLiteral("file"));
const QCommandLineOption appendOption(QStringLiteral("append"),
                                      QStringLiteral("Add to the script in place of replacing it."));
const QCommandLineOption secretOption(
    QStringLiteral("secret"),
    QStringLiteral("Write passwords as a look-up of this environment variable, which the script is then run with."),
    QStringLiteral("variable"));
const QCommandLineOption headlessOption(QStringLiteral("headless"), QStringLiteral("Show no window."));

// How soon the recording ends after somebody ended it.
const int attentionMs = 50;

struct RecordOptions {
  SessionOptions session;
  RecordingFiles::Options files;
  QString secret;
  QString address;
};

bool isSameFile(const QString& one, const QString& other) {
  return !one.isEmpty() && !other.isEmpty() &&
         (QFileInfo::exists(one) ? QFileInfo(one) == QFileInfo(other)
                                 : QFileInfo(one).absoluteFilePath() == QFileInfo(other).absoluteFilePath());
}

/// A file that is the page is read again whenever the page is loaded.
QString whyNotWritable(const RecordOptions& options) {
  const QUrl address(options.address);
  const QString page = address.isLocalFile() ? address.toLocalFile() : options.address;
  for (const QString& file : {options.files.script, options.files.objectMap}) {
    if (isSameFile(file, page)) {
      return QStringLiteral("The recording would take the place of the page: give it another file than '%1'.")
          .arg(file);
    }
  }
  return isSameFile(options.files.script, options.files.objectMap)
             ? QStringLiteral("The script and the object map need a file each, not '%1' for both.")
                   .arg(options.files.script)
             : QString();
}

/// An error, or an empty text.
QString readOptions(const QCommandLineParser& parser, RecordOptions* options) {
  const QString error = readBrowserOptions(parser, &options->session);
  options->session.headed = !parser.isSet(headlessOption) && options->session.remoteUrl.isEmpty();
  options->files = {parser.value(outputOption), parser.value(objectMapOption), parser.isSet(appendOption)};
  QStringList addresses = parser.positionalArguments();
  addresses.removeAll(QString());
  if (!error.isEmpty()) {
    return error;
  }
  if (addresses.size() != 1) {
    return addresses.isEmpty() ? QStringLiteral("The URL of the first page is missing.")
                               : QStringLiteral("It takes one URL, not %1.").arg(addresses.size());
  }
  for (const QCommandLineOption* option : {&outputOption, &objectMapOption}) {
    if (parser.isSet(*option) && parser.value(*option).isEmpty()) {
      return QStringLiteral("--%1 needs the name of a file.").arg(option->names().constLast());
    }
  }
  static const QRegularExpression variable(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
  options->secret = parser.value(secretOption);
  if (parser.isSet(secretOption) && !variable.match(options->secret).hasMatch()) {
    return QStringLiteral("--secret takes the name of an environment variable, such as SHOP_PASSWORD, not '%1'.")
        .arg(options->secret);
  }
  if (options->files.appends && options->files.script.isEmpty()) {
    return QStringLiteral("--append needs a script to add to: give it with -o.");
  }
  options->address = addresses.first();
  return whyNotWritable(*options);
}

/// As the script is to give it, from whose folder files are looked for.
QString addressForScript(const RecordOptions& options) {
  const QFileInfo file(options.address);
  if (!file.isFile()) {
    return options.address;
  }
  return options.files.script.isEmpty()
             ? file.absoluteFilePath()
             : QFileInfo(options.files.script).absoluteDir().relativeFilePath(file.absoluteFilePath());
}

class RecordingRun {
public:
  explicit RecordingRun(const RecordOptions& options)
      : m_options(options),
        m_files([this](const QString& line) { show(line); }, [this](const QString& error) { complain(error); }),
        m_calls(m_files),
        m_logger(m_calls),
        m_browser(options.session) {
    Inspector::self()->attachRecorder(&m_calls);
    Inspector::self()->setDefaultTimeout(options.session.defaultTimeoutMs);
    m_browser.recordWith(&m_logger);
    m_logger.setPictures([this](const QString& objectName) { return savePicture(objectName); });
    m_files.hideSecrets(options.secret, [this](const QString& object) { return m_logger.isPassword(object); });
  }
  ~RecordingRun() {
    Inspector::self()->setRecording(false);
    Inspector::self()->attachRecorder(nullptr);
    Cleanup::setStopFlag(nullptr);
  }

  /// Answers the exit code.
  int run();

private:
  QString startBrowser();
  FunctionCallResult<QString> savePicture(const QString& objectName);
  void show(const QString& line) {
    m_outputCode = qMax(m_outputCode, printOut(visibleText(line, LineBreaks::Shown) + u'\n', 0));
  }
  void complain(const QString& error) {
    m_failure = error;
    printError(QStringLiteral("corvexweb record: %1\n").arg(error));
  }

  const RecordOptions& m_options;
  RecordingFiles m_files;
  RecordedCalls m_calls;
  ActRecorder m_logger;
  BrowserControl m_browser;
  std::atomic<bool> m_isOver{false};
  QString m_failure;
  int m_outputCode = ExitCode::Success;
};

QString RecordingRun::startBrowser() {
  m_logger.setFirstPage(addressForScript(m_options));
  const QFileInfo file(m_options.address);
  return m_browser.startBrowser(file.isFile() ? file.absoluteFilePath() : m_options.address);
}

FunctionCallResult<QString> RecordingRun::savePicture(const QString& objectName) {
  using Result = FunctionCallResult<QString>;
  const QString script = m_options.files.script;
  const QDir folder = script.isEmpty() ? QDir::current() : QFileInfo(script).absoluteDir();
  const QString stem = script.isEmpty() ? QStringLiteral("recorded") : QFileInfo(script).completeBaseName();
  QString file;
  for (int number = 1; file.isEmpty() || folder.exists(file); ++number) {
    file = QStringLiteral("%1-%2.png").arg(stem).arg(number);
  }
  const SharedPtr<Object> object = Inspector::self()->lookup(objectName);
  const QString lost = Inspector::self()->takeScriptError();
  const WebWrapper::HTML_Object* const element = WebWrapper::retrieveObject(object);
  if (!element) {
    return Result::failure(lost.isEmpty() ? QStringLiteral("its name does not find it in this window.") : lost);
  }
  const QString error = takeScreenshot(*m_browser.windows()->current(), element, folder.filePath(file));
  return error.isEmpty() ? Result::success(file) : Result::failure(error);
}

int RecordingRun::run() {
  const QString error = m_files.open(m_options.files);
  if (!error.isEmpty()) {
    return wrongUsage(QStringLiteral("record"), error);
  }
  Cleanup::setStopFlag(&m_isOver);
  Inspector::self()->setRecording(true);
  const QString notStarted = startBrowser();
  if (!notStarted.isEmpty()) {
    complain(notStarted);
    return m_browser.hadBrowserFailure() ? ExitCode::BrowserFailed : ExitCode::Failed;
  }
  m_logger.watch(*m_browser.windows());
  m_logger.begin();
  poll(std::numeric_limits<int>::max(), attentionMs, [this] {
    m_logger.keepUp();
    return m_isOver || !m_failure.isEmpty() || m_outputCode != ExitCode::Success ||
           m_browser.windows()->connections().isEmpty();
  });
  m_logger.finish();
  Inspector::self()->setRecording(false);
  return m_failure.isEmpty() ? m_outputCode : ExitCode::Failed;
}

}  // namespace

int recordCommand(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral(
      "Opens a page in a browser and writes what you do there as a test script, line by line, until you close the\n"
      "window or press Ctrl+C.\n\n"
      "Exit code: 0 recorded, 1 the page could not be loaded or the recording could not be written, 2 wrong usage,\n"
      "3 the browser could not be started."));
  addBrowserOptions(parser);
  parser.addOptions({outputOption, objectMapOption, appendOption, secretOption, headlessOption});
  parser.addPositionalArgument(QStringLiteral("URL"), QStringLiteral("The first page: an address, or an HTML file."));
  if (const std::optional<int> exitCode = parseOptions(parser, arguments)) {
    return *exitCode;
  }
  RecordOptions options;
  const QString error = readOptions(parser, &options);
  return error.isEmpty() ? RecordingRun(options).run() : wrongUsage(arguments.value(0), error);
}

}  // namespace Corvex::Webhook
