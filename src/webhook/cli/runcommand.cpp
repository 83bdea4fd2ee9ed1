#include "webhook/cli/runcommand.h"

#include "corvexhook/inspector.h"
#include "scripting/engine/scriptengine.h"
#include "scripting/report/consolereporter.h"
#include "scripting/report/junitreporter.h"
#include "webhook/cli/commandline.h"
#include "webhook/cli/commandoptions.h"
#include "webhook/cli/lastfailed.h"
#include "webhook/cli/output.h"
#include "webhook/cli/runoptions.h"
#include "webhook/cli/savetree.h"
#include "webhook/cli/scriptchoice.h"
#include "webhook/run/browsercontrol.h"
#include "webhook/run/browserfunctions.h"

namespace Corvex::Webhook {

namespace {

int runScripts(const RunOptions& options) {
  using namespace Scripting;
  ConsoleReporter console(stdout,
                          options.verbose ? ConsoleReporter::Detail::ObjectCalls : ConsoleReporter::Detail::Steps);
  ProgressLine progress(stdout, int(options.scripts.size()));
  console.setProgress(&progress);
  LastFailed lastFailed;
  // What cannot be read is written anew.
  lastFailed.read();
  JUnitReporter junit(options.junitFile);
  BrowserControl browser(options.session, options.input, options.credentials);
  browser.setFailOnPageError(options.failOnPageError);
  ListenerGroup listeners;
  listeners.add(&browser);
  listeners.add(&console);
  listeners.add(&progress);
  listeners.add(&lastFailed);
  if (!options.junitFile.isEmpty()) {
    const QString error = junit.open();
    if (!error.isEmpty()) {
      return wrongUsage(QStringLiteral("run"), error);
    }
    listeners.add(&junit);
  }
  Inspector::self()->setDefaultTimeout(options.session.defaultTimeoutMs);
  ScriptHost host = browserFunctions(browser);
  host.functions.push_back(saveTreeFunction(browser));
  host.arguments = options.arguments;
  ScriptEngine engine(host, &listeners);
  engine.setScriptTimeout(options.scriptTimeoutMs);
  beforeErrors([&progress] { progress.hide(); });
  // Nobody would see what the rest does.
  console.setOutputEnd([&engine] { engine.interrupt(); });
  const RunSummary summary = engine.run(options.scripts, options.policy);
  beforeErrors(nullptr);
  const QString notNoted = lastFailed.save();
  if (!notNoted.isEmpty()) {
    printError(QStringLiteral("corvexweb run: %1\n").arg(notNoted));
  }
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
  parser.setApplicationDescription(QStringLiteral(
      "Runs test scripts in a browser, one after the other, each in a browser of its own.\n\n"
      "Of a folder the files *.js below it run, in the order of their names, but for those that begin with\n"
      "'_', or are in a folder that does, or in one named lib.\n\n"
      "Exit code: 0 all passed or skipped, 1 a script failed or the results could not be written, 2 wrong usage,\n"
      "3 the browser could not be started or was lost."));
  addRunOptions(parser);
  if (const std::optional<int> exitCode = parseOptions(parser, arguments)) {
    return *exitCode;
  }
  RunOptions options;
  const QString error = readRunOptions(parser, &options);
  if (!error.isEmpty()) {
    return wrongUsage(arguments.value(0), error);
  }
  if (!options.notice.isEmpty()) {
    printError(QStringLiteral("corvexweb run: %1\n").arg(options.notice));
  }
  return options.lists ? printOut(scriptList(options.scripts), ExitCode::Success) : runScripts(options);
}

}  // namespace Corvex::Webhook
