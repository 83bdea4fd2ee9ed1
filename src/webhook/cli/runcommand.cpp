#include "webhook/cli/runcommand.h"

#include "corvexhook/inspector.h"
#include "corvexhook/objectmap.h"
#include "scripting/engine/scriptengine.h"
#include "scripting/report/consolereporter.h"
#include "scripting/report/htmlreporter.h"
#include "scripting/report/junitreporter.h"
#include "shared/textfile.h"
#include "webhook/browser/authentication.h"
#include "webhook/cli/browseroptions.h"
#include "webhook/cli/commandline.h"
#include "webhook/cli/commandoptions.h"
#include "webhook/cli/output.h"
#include "webhook/cli/runfacts.h"
#include "webhook/cli/savetree.h"
#include "webhook/cli/scriptchoice.h"
#include "webhook/inspect/dumpfile.h"
#include "webhook/run/browsercontrol.h"
#include "webhook/run/browserfunctions.h"
#include "webhook/run/pagewitness.h"

#include <QMap>
#include <QRegularExpression>

#include <memory>
#include <vector>

namespace Corvex::Webhook {

namespace {

const QCommandLineOption junitOption(QStringLiteral("junit"), QStringLiteral("Write the results as JUnit XML, too."),
                                     QStringLiteral("file"));
const QCommandLineOption reportOption(
    QStringLiteral("report"),
    QStringLiteral(
        "Write what happens as one HTML file, with pictures and objects of the pages where something fails."),
    QStringLiteral("file"));
const QCommandLineOption traceOption(QStringLiteral("trace"),
                                     QStringLiteral("Show a small picture of the page after each step in the report."));
const QCommandLineOption objectMapOption(QStringLiteral("object-map"),
                                         QStringLiteral("Take the symbolic names of objects from this file."),
                                         QStringLiteral("file"));
const QCommandLineOption failOnPageErrorOption(QStringLiteral("fail-on-page-error"),
                                               QStringLiteral("Count an uncaught error of a page as a failed check."));
const QCommandLineOption verboseOption(QStringLiteral("verbose"), QStringLiteral("Show the calls of objects, too."));

const QCommandLineOption inputOption(
    QStringLiteral("input"),
    QStringLiteral("Who clicks and types: the browser, as for a person, or scripts in the page."),
    QStringLiteral("browser|page"), QStringLiteral("browser"));
const QCommandLineOption strictOption(QStringLiteral("strict"),
                                      QStringLiteral("Act on no object whose name fits several."));
const QCommandLineOption argumentOption(QStringLiteral("arg"),
                                        QStringLiteral("Give scripts a text as script.arguments.NAME; repeatable."),
                                        QStringLiteral("name=value"));
const QCommandLineOption filterOption(
    QStringLiteral("filter"),
    QStringLiteral("Run only scripts whose paths, and test functions whose names, hold this text or, with * or ?, are "
                   "like it; of several options one has to fit."),
    QStringLiteral("text"));
const QCommandLineOption credentialsOption(
    QStringLiteral("credentials"),
    QStringLiteral("What servers are told that ask for a user and a password: USER:PASSWORD, for one server alone with "
                   "@http://host:port after it; or @ and a file with one of these a line, which keeps the password "
                   "off the command line; repeatable."),
    QStringLiteral("user:password"));
const QCommandLineOption scriptTimeoutOption(QStringLiteral("script-timeout"),
                                             QStringLiteral("End a script that takes longer; no limit without this."),
                                             QStringLiteral("seconds"));

struct RunOptions {
  SessionOptions session;
  std::vector<Scripting::ScriptChoice> scripts;
  QMap<QString, QString> arguments;
  QVector<Credentials> credentials;
  int scriptTimeoutMs = 0;
  QString junitFile;
  QString reportFile;
  /// Arguments of the command, for the report.
  QStringList ownArguments;
  bool trace = false;
  InputSettings input;
  bool failOnPageError = false;
  bool verbose = false;
};

QString readArguments(const QStringList& texts, QMap<QString, QString>* arguments) {
  for (const QString& text : texts) {
    const int equals = text.indexOf(QLatin1Char('='));
    if (equals < 1) {
      return QStringLiteral("--arg takes a name and its value, such as --arg server=test1, not '%1'.").arg(text);
    }
    arguments->insert(text.left(equals), text.mid(equals + 1));
  }
  return QString();
}

QString readScripts(const QCommandLineParser& parser, RunOptions* options) {
  if (parser.positionalArguments().isEmpty()) {
    return QStringLiteral("A script is missing.");
  }
  const QStringList filters = parser.values(filterOption);
  if (filters.contains(QString())) {
    return QStringLiteral("--filter needs a part of a path or of a test function's name.");
  }
  const auto choice = chooseScripts(parser.positionalArguments(), filters);
  options->scripts = choice.value;
  return choice.error;
}

/// An error, or an empty text.
QString readCredentials(const QStringList& texts, QVector<Credentials>* credentials) {
  QStringList all;
  for (const QString& text : texts) {
    const bool isFile = text.startsWith(QLatin1Char('@'));
    const FunctionCallResult<QString> file = isFile ? readTextFile(text.mid(1)) : FunctionCallResult<QString>();
    if (file.failed()) {
      return QStringLiteral("--credentials: the file '%1' cannot be read: %2").arg(text.mid(1), file.error);
    }
    all += isFile ? file.value.split(QRegularExpression(QStringLiteral("\\r?\\n")), Qt::SkipEmptyParts)
                  : QStringList{text};
  }
  for (const QString& text : all) {
    const FunctionCallResult<Credentials> read = Authentication::read(text);
    if (read.failed()) {
      return QStringLiteral("--credentials takes %1; or @ and a file of such lines.").arg(read.error);
    }
    credentials->append(read.value);
  }
  return QString();
}

/// An error, or an empty text.
QString readInput(const QCommandLineParser& parser, InputSettings* input) {
  const QString who = parser.value(inputOption);
  *input = {who == QLatin1String("page"), parser.isSet(strictOption)};
  return input->inPage || who == QLatin1String("browser")
             ? QString()
             : QStringLiteral("--input takes browser or page, not '%1'.").arg(who);
}

/// An error, or an empty text.
QString readOptions(const QCommandLineParser& parser, RunOptions* options) {
  QString error = readBrowserOptions(parser, &options->session);
  options->junitFile = parser.value(junitOption);
  options->reportFile = parser.value(reportOption);
  options->trace = parser.isSet(traceOption);
  options->failOnPageError = parser.isSet(failOnPageErrorOption);
  options->verbose = parser.isSet(verboseOption);
  if (error.isEmpty() && parser.isSet(scriptTimeoutOption)) {
    error = readSeconds(parser, scriptTimeoutOption, &options->scriptTimeoutMs);
  }
  if (error.isEmpty()) {
    error = readArguments(parser.values(argumentOption), &options->arguments);
  }
  if (error.isEmpty()) {
    error = readCredentials(parser.values(credentialsOption), &options->credentials);
  }
  if (error.isEmpty()) {
    error = readScripts(parser, options);
  }
  if (error.isEmpty()) {
    error = readInput(parser, &options->input);
  }
  if (error.isEmpty() && parser.isSet(reportOption) && options->reportFile.isEmpty()) {
    error = QStringLiteral("--report needs the name of the file to write, such as report.html.");
  }
  if (error.isEmpty() && options->trace && options->reportFile.isEmpty()) {
    error = QStringLiteral("--trace puts pictures into a report: use it with --report FILE.");
  }
  return error.isEmpty() && parser.isSet(objectMapOption) ? ObjectMap::self()->load(parser.value(objectMapOption))
                                                          : error;
}

/// Has the host show the report what its pages look like.
void addWitness(const RunOptions& options, BrowserControl* browser, Scripting::ScriptListener* listener,
                Scripting::ScriptHost* host) {
  const auto witness = std::make_shared<PageWitness>(*browser, options.trace);
  host->look = [witness](Scripting::Moment moment, const SharedPtr<Object>& about, Scripting::ScriptListener* told) {
    witness->look(moment, about, told);
  };
  browser->setTellsConsole(true);
  browser->setBrowserStarted([listener](const BrowserSession& session) {
    listener->environment(
        {{QStringLiteral("Browser"), session.browserName() + QLatin1Char(' ') + session.browserVersion()}});
  });
}

/// Answers whether there was anything to complain about.
bool complain(const QString& error) {
  if (!error.isEmpty()) {
    printError(QStringLiteral("corvexweb run: %1\n").arg(error));
  }
  return !error.isEmpty();
}

int runScripts(const RunOptions& options) {
  using namespace Scripting;
  ConsoleReporter console(stdout,
                          options.verbose ? ConsoleReporter::Detail::ObjectCalls : ConsoleReporter::Detail::Steps);
  JUnitReporter junit(options.junitFile);
  HtmlReporter report(options.reportFile, dumpViewer());
  BrowserControl browser(options.session, options.input, options.credentials);
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
  if (!options.reportFile.isEmpty()) {
    const QString error = report.open();
    if (!error.isEmpty()) {
      return wrongUsage(QStringLiteral("run"), error);
    }
    listeners.add(&report);
    report.environment(runFacts(options.ownArguments));
  }
  Inspector::self()->setDefaultTimeout(options.session.defaultTimeoutMs);
  ScriptHost host = browserFunctions(browser);
  host.functions.push_back(saveTreeFunction(browser));
  host.arguments = options.arguments;
  if (!options.reportFile.isEmpty()) {
    addWitness(options, &browser, &listeners, &host);
  }
  ScriptEngine engine(host, &listeners);
  engine.setScriptTimeout(options.scriptTimeoutMs);
  // Nobody would see what the rest does.
  console.setOutputEnd([&engine] { engine.interrupt(); });
  const RunSummary summary = engine.run(options.scripts);
  const bool isJUnitLost = complain(junit.error());
  const bool isReportLost = complain(report.error());
  const bool failed = summary.failed() > 0 || isJUnitLost || isReportLost;
  const int exitCode = browser.hadBrowserFailure() ? ExitCode::BrowserFailed
                       : failed                    ? ExitCode::Failed
                                                   : ExitCode::Success;
  return console.error() ? outputFailed(console.error(), exitCode) : exitCode;
}

}  // namespace

int runScriptsCommand(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral(
      "Runs test scripts in a browser, one after the other, each in a browser of its own.\n\n"
      "Of a folder the files *.js below it run, in the order of their names, but for those that begin with\n"
      "'_', or are in a folder that does, or in one named lib.\n\n"
      "Exit code: 0 all passed or skipped, 1 a script failed or the results could not be written, 2 wrong usage,\n"
      "3 the browser could not be started or was lost."));
  addBrowserOptions(parser);
  parser.addOptions({junitOption, reportOption, traceOption, objectMapOption, inputOption, strictOption,
                     failOnPageErrorOption, argumentOption, credentialsOption, filterOption, scriptTimeoutOption,
                     verboseOption});
  parser.addPositionalArgument(QStringLiteral("SCRIPT..."),
                               QStringLiteral("The scripts, in JavaScript, or folders of them."));
  if (const std::optional<int> exitCode = parseOptions(parser, arguments)) {
    return *exitCode;
  }
  RunOptions options;
  const QString error = readOptions(parser, &options);
  options.ownArguments = arguments.mid(1);
  return error.isEmpty() ? runScripts(options) : wrongUsage(arguments.value(0), error);
}

}  // namespace Corvex::Webhook
