#include "webhook/runcommand.h"

#include "corvexhook/inspector.h"
#include "scripting/consolereporter.h"
#include "scripting/junitreporter.h"
#include "scripting/scriptengine.h"
#include "webhook/browsercontrol.h"
#include "webhook/browserfunctions.h"
#include "webhook/commandline.h"
#include "webhook/commandoptions.h"
#include "webhook/output.h"

#include <QFileInfo>

namespace Corvex::Webhook {

namespace {

const QCommandLineOption browserOption(QStringLiteral("browser"),
                                       QStringLiteral("The browser: chromium, firefox, or the path of its program."),
                                       QStringLiteral("name"), QStringLiteral("chromium"));
const QCommandLineOption headedOption(QStringLiteral("headed"), QStringLiteral("Show the browser's windows."));
const QCommandLineOption attachOption(QStringLiteral("attach"),
                                      QStringLiteral("Use a running browser, by the address of its debugging socket."),
                                      QStringLiteral("ws://..."));
const QCommandLineOption remoteOption(QStringLiteral("remote"),
                                      QStringLiteral("Ask this WebDriver server for a browser."),
                                      QStringLiteral("http://host:port"));
const QCommandLineOption capabilitiesOption(
    QStringLiteral("capabilities"), QStringLiteral("What to ask the server for: JSON, or @ and a file of JSON."),
    QStringLiteral("json"));
const QCommandLineOption timeoutOption(
    QStringLiteral("timeout"),
    QStringLiteral("How long waitForObject waits, and a page may take to answer: 20 at first."),
    QStringLiteral("seconds"), QStringLiteral("20"));
const QCommandLineOption junitOption(QStringLiteral("junit"), QStringLiteral("Write the results as JUnit XML, too."),
                                     QStringLiteral("file"));
const QCommandLineOption verboseOption(QStringLiteral("verbose"), QStringLiteral("Show the calls of objects, too."));

struct RunOptions {
  SessionOptions session;
  QStringList scripts;
  QString junitFile;
  bool verbose = false;
  int timeoutMs = 0;
};

QString unreadable(const QStringList& scripts) {
  for (const QString& script : scripts) {
    const QFileInfo file(script);
    if (!file.isFile() || !file.isReadable()) {
      return QStringLiteral("The script '%1' %2.")
          .arg(script, file.exists() ? QStringLiteral("cannot be read") : QStringLiteral("does not exist"));
    }
  }
  return QString();
}

/// An error, or an empty text.
QString readOptions(const QCommandLineParser& parser, RunOptions* options) {
  bool isNumber = false;
  const double seconds = parser.value(timeoutOption).toDouble(&isNumber);
  if (!isNumber || seconds <= 0 || seconds > 86400) {
    return QStringLiteral("--timeout takes a number of seconds above 0, not '%1'.").arg(parser.value(timeoutOption));
  }
  options->timeoutMs = static_cast<int>(seconds * 1000);
  options->session.browser = parser.value(browserOption);
  options->session.attachTo = parser.value(attachOption);
  options->session.remoteUrl = parser.value(remoteOption);
  options->session.capabilities = parser.value(capabilitiesOption);
  options->session.headed = parser.isSet(headedOption);
  options->session.defaultTimeoutMs = options->timeoutMs;
  options->scripts = parser.positionalArguments();
  options->junitFile = parser.value(junitOption);
  options->verbose = parser.isSet(verboseOption);
  if (parser.isSet(remoteOption) && (parser.isSet(attachOption) || parser.isSet(headedOption))) {
    return QStringLiteral("--remote cannot stand beside --attach or --headed: the server decides on its browser.");
  }
  return options->scripts.isEmpty() ? QStringLiteral("A script is missing.") : unreadable(options->scripts);
}

int runScripts(const RunOptions& options) {
  using namespace Scripting;
  ConsoleReporter console(stdout,
                          options.verbose ? ConsoleReporter::Detail::ObjectCalls : ConsoleReporter::Detail::Steps);
  JUnitReporter junit(options.junitFile);
  BrowserControl browser(options.session);
  ListenerGroup listeners;
  listeners.add(&browser);
  listeners.add(&console);
  if (!options.junitFile.isEmpty()) {
    const QString error = junit.open();
    if (!error.isEmpty()) {
      return wrongUsage(QStringLiteral("run"), error);
    }
    listeners.add(&junit);
  }
  Inspector::self()->setDefaultTimeout(options.timeoutMs);
  const RunSummary summary = ScriptEngine(browserFunctions(browser), &listeners).run(options.scripts);
  if (!junit.error().isEmpty()) {
    printError(QStringLiteral("corvexweb run: %1\n").arg(junit.error()));
  }
  if (browser.hadBrowserFailure()) {
    return ExitCode::BrowserFailed;
  }
  return summary.failed() > 0 || !junit.error().isEmpty() ? ExitCode::ScriptFailed : ExitCode::Success;
}

}  // namespace

int runScriptsCommand(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral(
      "Runs test scripts in a browser, one behind the other, each in a browser of its own.\n\n"
      "Exit code: 0 all passed, 1 a script failed, 2 wrong usage, 3 the browser could not be started or\n"
      "was lost."));
  parser.addOptions({browserOption, headedOption, attachOption, remoteOption, capabilitiesOption, timeoutOption,
                     junitOption, verboseOption});
  parser.addPositionalArgument(QStringLiteral("SCRIPT..."), QStringLiteral("The scripts, in JavaScript."));
  if (const std::optional<int> exitCode = parseOptions(parser, arguments)) {
    return *exitCode;
  }
  RunOptions options;
  const QString error = readOptions(parser, &options);
  return error.isEmpty() ? runScripts(options) : wrongUsage(arguments.value(0), error);
}

}  // namespace Corvex::Webhook
