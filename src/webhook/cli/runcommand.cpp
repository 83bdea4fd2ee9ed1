#include "webhook/cli/runcommand.h"

#include "corvexhook/inspector.h"
#include "corvexhook/objectmap.h"
#include "scripting/engine/scriptengine.h"
#include "scripting/report/consolereporter.h"
#include "scripting/report/junitreporter.h"
#include "webhook/cli/browseroptions.h"
#include "webhook/cli/commandline.h"
#include "webhook/cli/commandoptions.h"
#include "webhook/cli/output.h"
#include "webhook/run/browsercontrol.h"
#include "webhook/run/browserfunctions.h"

#include <QFileInfo>

namespace Corvex::Webhook {

namespace {

const QCommandLineOption junitOption(QStringLiteral("junit"), QStringLiteral("Write the results as JUnit XML, too."),
                                     QStringLiteral("file"));
const QCommandLineOption objectMapOption(QStringLiteral("object-map"),
                                         QStringLiteral("Take the symbolic names of objects from this file."),
                                         QStringLiteral("file"));
const QCommandLineOption failOnPageErrorOption(QStringLiteral("fail-on-page-error"),
                                               QStringLiteral("Count an uncaught error of a page as a failed check."));
const QCommandLineOption verboseOption(QStringLiteral("verbose"), QStringLiteral("Show the calls of objects, too."));

struct RunOptions {
  SessionOptions session;
  QStringList scripts;
  QString junitFile;
  bool failOnPageError = false;
  bool verbose = false;
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
  QString error = readBrowserOptions(parser, &options->session);
  if (!error.isEmpty()) {
    return error;
  }
  options->scripts = parser.positionalArguments();
  options->junitFile = parser.value(junitOption);
  options->failOnPageError = parser.isSet(failOnPageErrorOption);
  options->verbose = parser.isSet(verboseOption);
  error = options->scripts.isEmpty() ? QStringLiteral("A script is missing.") : unreadable(options->scripts);
  return error.isEmpty() && parser.isSet(objectMapOption) ? ObjectMap::self()->load(parser.value(objectMapOption))
                                                          : error;
}

int runScripts(const RunOptions& options) {
  using namespace Scripting;
  ConsoleReporter console(stdout,
                          options.verbose ? ConsoleReporter::Detail::ObjectCalls : ConsoleReporter::Detail::Steps);
  JUnitReporter junit(options.junitFile);
  BrowserControl browser(options.session);
  browser.setFailOnPageError(options.failOnPageError);
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
  Inspector::self()->setDefaultTimeout(options.session.defaultTimeoutMs);
  ScriptEngine engine(browserFunctions(browser), &listeners);
  // Nobody would see what the rest does.
  console.setOutputEnd([&engine] { engine.interrupt(); });
  const RunSummary summary = engine.run(options.scripts);
  if (!junit.error().isEmpty()) {
    printError(QStringLiteral("corvexweb run: %1\n").arg(junit.error()));
  }
  const bool failed = summary.failed() > 0 || !junit.error().isEmpty();
  const int exitCode = browser.hadBrowserFailure() ? ExitCode::BrowserFailed
                       : failed                    ? ExitCode::Failed
                                                   : ExitCode::Success;
  return console.error() ? outputFailed(console.error(), exitCode) : exitCode;
}

}  // namespace

int runScriptsCommand(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("Runs test scripts in a browser, one after the other, each in a browser of its own.\n\n"
                     "Exit code: 0 all passed, 1 a script failed or the results could not be written, 2 wrong usage,\n"
                     "3 the browser could not be started or was lost."));
  addBrowserOptions(parser);
  parser.addOptions({junitOption, objectMapOption, failOnPageErrorOption, verboseOption});
  parser.addPositionalArgument(QStringLiteral("SCRIPT..."), QStringLiteral("The scripts, in JavaScript."));
  if (const std::optional<int> exitCode = parseOptions(parser, arguments)) {
    return *exitCode;
  }
  RunOptions options;
  const QString error = readOptions(parser, &options);
  return error.isEmpty() ? runScripts(options) : wrongUsage(arguments.value(0), error);
}

}  // namespace Corvex::Webhook
