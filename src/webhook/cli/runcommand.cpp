#include "webhook/cli/runcommand.h"

#include "corvexhook/inspector.h"
#include "scripting/engine/scriptengine.h"
#include "scripting/report/runevents.h"
#include "webhook/cli/commandline.h"
#include "webhook/cli/commandoptions.h"
#include "webhook/cli/output.h"
#include "webhook/cli/parallelrun.h"
#include "webhook/cli/runoptions.h"
#include "webhook/cli/runreports.h"
#include "webhook/cli/savetree.h"
#include "webhook/cli/scriptchoice.h"
#include "webhook/cli/workerrequest.h"
#include "webhook/run/browsercontrol.h"
#include "webhook/run/browserfunctions.h"
#include "webhook/run/pagewitness.h"

#include <QFile>
#include <QJsonDocument>

#include <fcntl.h>

#include <memory>

namespace Corvex::Webhook {

namespace {

/// What scripts that run in this process need.
class OwnRun {
public:
  /// Borrows the listener.
  OwnRun(const RunOptions& options, Scripting::ScriptListener* listener)
      : m_browser(options.session, options.input, options.credentials) {
    m_browser.setFailOnPageError(options.failOnPageError);
    Inspector::self()->setDefaultTimeout(options.session.defaultTimeoutMs);
    m_listeners.add(&m_browser);
    m_listeners.add(listener);
    Scripting::ScriptHost host = browserFunctions(m_browser);
    host.functions.push_back(saveTreeFunction(m_browser));
    host.arguments = options.arguments;
    if (!options.reportFile.isEmpty()) {
      addWitness(options.trace, &host);
    }
    m_engine = std::make_unique<Scripting::ScriptEngine>(host, &m_listeners);
    m_engine->setScriptTimeout(options.scriptTimeoutMs);
  }

  Scripting::ScriptEngine& engine() { return *m_engine; }
  int exitCode(bool hasFailed) const {
    return m_browser.hadBrowserFailure() ? ExitCode::BrowserFailed : hasFailed ? ExitCode::Failed : ExitCode::Success;
  }

private:
  /// Has the host show the report what its pages look like.
  void addWitness(bool showsSteps, Scripting::ScriptHost* host) {
    const auto witness = std::make_shared<PageWitness>(m_browser, showsSteps);
    host->look = [witness](Scripting::Moment moment, const SharedPtr<Object>& about,
                           Scripting::ScriptListener* listener) { witness->look(moment, about, listener); };
    m_browser.setTellsConsole(true);
    m_browser.setBrowserStarted([this](const BrowserSession& session) {
      m_listeners.environment(
          {{QStringLiteral("Browser"), session.browserName() + QLatin1Char(' ') + session.browserVersion()}});
    });
  }

  BrowserControl m_browser;
  Scripting::ListenerGroup m_listeners;
  std::unique_ptr<Scripting::ScriptEngine> m_engine;
};

int runOneAfterTheOther(const RunOptions& options, RunReports* reports) {
  OwnRun run(options, &reports->all());
  // Nobody would see what the rest does.
  reports->setOutputEnd([&run] { run.engine().interrupt(); });
  const Scripting::RunSummary summary = run.engine().run(options.scripts, options.policy);
  return reports->close(run.exitCode(summary.failed() > 0));
}

int runSideBySide(const RunOptions& options, const QStringList& arguments, RunReports* reports) {
  ParallelRun run({options.scripts, options.policy, options.jobs, arguments});
  const QString why = run.whyNotRun();
  if (!why.isEmpty()) {
    printError(QStringLiteral("corvexweb run: %1\n").arg(why));
    return ExitCode::Failed;
  }
  run.showTo(&reports->shown());
  run.followWith(&reports->followed());
  run.reportTo(&reports->files());
  reports->setOutputEnd([&run] { run.stop(); });
  const Scripting::RunSummary summary = run.run();
  return reports->close(run.hadBrowserFailure() ? ExitCode::BrowserFailed
                        : summary.failed() > 0  ? ExitCode::Failed
                                                : ExitCode::Success);
}

int runAsWorker(const RunOptions& options) {
  QFile events;
  // Of no use to browsers.
  if (fcntl(workerEventDescriptor, F_SETFD, FD_CLOEXEC) != 0 ||
      !events.open(workerEventDescriptor, QIODevice::WriteOnly | QIODevice::Unbuffered)) {
    return wrongUsage(QStringLiteral("run"), readWorkerRequest(QString()).error);
  }
  OwnRun* running = nullptr;
  Scripting::EventWriter writer([&events, &running](const QJsonObject& event) {
    const QByteArray line = QJsonDocument(event).toJson(QJsonDocument::Compact) + '\n';
    // Nobody listens any more.
    if (events.write(line) != line.size()) {
      running->engine().interrupt();
    }
  });
  OwnRun run(options, &writer);
  running = &run;
  return run.exitCode(!run.engine().runScript(*options.ownScript).whole().passed());
}

int runScripts(const RunOptions& options, const QStringList& arguments) {
  RunReports reports(options);
  const QString error = reports.open();
  if (!error.isEmpty()) {
    return wrongUsage(QStringLiteral("run"), error);
  }
  return options.jobs > 1 ? runSideBySide(options, arguments, &reports) : runOneAfterTheOther(options, &reports);
}

}  // namespace

int runScriptsCommand(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral(
      "Runs test scripts in a browser, one after the other or with --jobs side by side, each in a browser of its "
      "own.\n\n"
      "Of a folder the files *.js below it run, in the order of their names, but for those that begin with\n"
      "'_', or are in a folder that does, or in one named lib.\n\n"
      "Exit code: 0 all passed or skipped, 1 a script failed or the results could not be written, 2 wrong usage,\n"
      "3 the browser could not be started or was lost."));
  addRunOptions(parser);
  if (const std::optional<int> exitCode = parseOptions(parser, arguments)) {
    return *exitCode;
  }
  RunOptions options;
  options.ownArguments = arguments.mid(1);
  const QString error = readRunOptions(parser, &options);
  if (!error.isEmpty()) {
    return wrongUsage(arguments.value(0), error);
  }
  if (!options.notice.isEmpty()) {
    printError(QStringLiteral("corvexweb run: %1\n").arg(options.notice));
  }
  if (options.ownScript) {
    return runAsWorker(options);
  }
  return options.lists ? printOut(scriptList(options.scripts), ExitCode::Success)
                       : runScripts(options, arguments.mid(1));
}

}  // namespace Corvex::Webhook
