#include "webhook/cli/runoptions.h"

#include "corvexhook/objectmap.h"
#include "shared/textfile.h"
#include "webhook/cli/browseroptions.h"
#include "webhook/cli/lastfailed.h"
#include "webhook/cli/scriptchoice.h"
#include "webhook/cli/workerrequest.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace Corvex::Webhook {

namespace {

const QCommandLineOption reportOption(
    QStringLiteral("report"),
    QStringLiteral(
        "Write what happens as one HTML file, with pictures and objects of the pages where something fails."),
    QStringLiteral("file"));
const QCommandLineOption traceOption(QStringLiteral("trace"),
                                     QStringLiteral("Show a small picture of the page after each step in the report."));
const QCommandLineOption junitOption(QStringLiteral("junit"), QStringLiteral("Write the results as JUnit XML, too."),
                                     QStringLiteral("file"));
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

const QCommandLineOption listOption(QStringLiteral("list"),
                                    QStringLiteral("Print the scripts and test functions that would run; run none."));
const QCommandLineOption lastFailedOption(
    QStringLiteral("last-failed"),
    QStringLiteral("Run only scripts that failed when they last ran from this folder; all if none of them did."));
const QCommandLineOption jobsOption(
    QStringLiteral("jobs"),
    QStringLiteral("Run so many scripts side by side, each in a process of its own: 1 at first."),
    QStringLiteral("number"));
const QCommandLineOption retriesOption(
    QStringLiteral("retries"),
    QStringLiteral("Run a script that failed again, up to so often. One that passes then is flaky, and no failure."),
    QStringLiteral("number"));
const QCommandLineOption stopAfterOption(QStringLiteral("stop-after"),
                                         QStringLiteral("Begin no script any more when so many have failed."),
                                         QStringLiteral("number"));

QCommandLineOption makeWorkerOption() {
  QCommandLineOption option(QStringLiteral("worker"), QString(), QStringLiteral("request"));
  option.setFlags(QCommandLineOption::HiddenFromHelp);
  return option;
}

const QCommandLineOption workerOption = makeWorkerOption();

struct CountOption {
  const QCommandLineOption* option;
  int least;
  int most;
  int* (*place)(RunOptions* options);
};

const CountOption countOptions[] = {
    {&jobsOption, 1, 64, [](RunOptions* options) { return &options->jobs; }},
    {&retriesOption, 0, 100, [](RunOptions* options) { return &options->policy.retries; }},
    {&stopAfterOption, 1, 1000000, [](RunOptions* options) { return &options->policy.stopAfter; }},
};

/// An error, or an empty text.
QString readCounts(const QCommandLineParser& parser, RunOptions* options) {
  for (const CountOption& row : countOptions) {
    if (!parser.isSet(*row.option)) {
      continue;
    }
    const QString text = parser.value(*row.option);
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < row.least || number > row.most) {
      return QStringLiteral("--%1 takes a number from %2 to %3, not '%4'.")
          .arg(row.option->names().constLast())
          .arg(row.least)
          .arg(row.most)
          .arg(text);
    }
    *row.place(options) = number;
  }
  return options->jobs > 1 && !options->session.attachTo.isEmpty()
             ? QStringLiteral("--jobs cannot stand beside --attach: scripts side by side cannot share a browser.")
             : QString();
}

void keepLastFailed(RunOptions* options) {
  LastFailed lastFailed;
  const QString error = lastFailed.read();
  std::vector<Scripting::ScriptChoice> kept;
  std::copy_if(options->scripts.begin(), options->scripts.end(), std::back_inserter(kept),
               [&lastFailed](const Scripting::ScriptChoice& script) { return lastFailed.contains(script.path); });
  if (kept.empty()) {
    const QString why = error.isEmpty() ? QStringLiteral("None of the scripts failed when it last ran.") : error;
    options->notice = why + QStringLiteral(" All of them run.");
  } else {
    options->scripts = kept;
  }
}

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
  if (parser.isSet(workerOption)) {
    const auto request = readWorkerRequest(parser.value(workerOption));
    options->ownScript = request.value;
    return request.error;
  }
  if (parser.positionalArguments().isEmpty()) {
    return QStringLiteral("A script is missing.");
  }
  const QStringList filters = parser.values(filterOption);
  if (filters.contains(QString())) {
    return QStringLiteral("--filter needs a part of a path or of a test function's name.");
  }
  const auto choice = chooseScripts(parser.positionalArguments(), filters);
  options->scripts = choice.value;
  if (!choice.failed() && parser.isSet(lastFailedOption)) {
    keepLastFailed(options);
  }
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
QString readReport(const QCommandLineParser& parser, RunOptions* options) {
  options->reportFile = parser.value(reportOption);
  options->trace = parser.isSet(traceOption);
  if (parser.isSet(reportOption) && options->reportFile.isEmpty()) {
    return QStringLiteral("--report needs the name of the file to write, such as report.html.");
  }
  return options->trace && options->reportFile.isEmpty()
             ? QStringLiteral("--trace puts pictures into a report: use it with --report FILE.")
             : QString();
}

}  // namespace

void addRunOptions(QCommandLineParser& parser) {
  addBrowserOptions(parser);
  parser.addOptions({junitOption, reportOption, traceOption, objectMapOption, inputOption, strictOption,
                     failOnPageErrorOption, argumentOption, credentialsOption, filterOption, lastFailedOption,
                     listOption, jobsOption, retriesOption, stopAfterOption, workerOption, scriptTimeoutOption,
                     verboseOption});
  parser.addPositionalArgument(QStringLiteral("SCRIPT..."),
                               QStringLiteral("The scripts, in JavaScript, or folders of them."));
}

QString readRunOptions(const QCommandLineParser& parser, RunOptions* options) {
  QString error = readBrowserOptions(parser, &options->session);
  options->junitFile = parser.value(junitOption);
  options->failOnPageError = parser.isSet(failOnPageErrorOption);
  options->verbose = parser.isSet(verboseOption);
  if (error.isEmpty() && parser.isSet(scriptTimeoutOption)) {
    error = readSeconds(parser, scriptTimeoutOption, &options->scriptTimeoutMs);
  }
  options->lists = parser.isSet(listOption);
  if (error.isEmpty()) {
    error = readReport(parser, options);
  }
  if (error.isEmpty()) {
    error = readCounts(parser, options);
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
  return error.isEmpty() && parser.isSet(objectMapOption) ? ObjectMap::self()->load(parser.value(objectMapOption))
                                                          : error;
}

}  // namespace Corvex::Webhook
