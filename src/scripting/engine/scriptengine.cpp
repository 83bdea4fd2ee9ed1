#include "scripting/engine/scriptengine.h"

#include <QElapsedTimer>
#include <QJSEngine>

#include "corvexhook/inspector.h"
#include "scripting/engine/interruption.h"
#include "scripting/engine/scriptrun.h"
#include "scripting/engine/watchdog.h"

// Outside of any namespace, as Qt asks for it.
static void initResources() { Q_INIT_RESOURCE(scripting); }

namespace Corvex::Scripting {

namespace {

const QString interruptedText = QStringLiteral("interrupted");

QString timeOverText(int milliseconds) {
  return QStringLiteral("The script took longer than the %1 s that it may take, and was ended.")
      .arg(static_cast<double>(milliseconds) / 1000.0);
}

}  // namespace

struct ScriptEngine::Private {
  Private(const ScriptHost& scriptHost, ScriptListener* scriptListener)
      : host(scriptHost), listener(scriptListener), calls(scriptListener) {}

  ScriptHost host;
  ScriptListener* listener;
  MemberCalls calls;
  Interruption interruption;
  int scriptTimeoutMs = 0;
};

ScriptEngine::ScriptEngine(const ScriptHost& host, ScriptListener* listener) : d(new Private(host, listener)) {
  initResources();
}

ScriptEngine::~ScriptEngine() = default;

ScriptResult ScriptEngine::runScript(const ScriptChoice& choice) {
  ScriptResult result;
  result.path = choice.path;
  d->listener->scriptStarted(choice.path);
  QElapsedTimer timer;
  timer.start();
  // What an earlier script left behind is none of this one's errors.
  Inspector::self()->takeScriptError();
  bool isTimeOver = false;
  {
    QJSEngine engine;
    ScriptRun script(&engine, d->host, &d->calls, d->listener, &result, &d->interruption);
    d->interruption.setRunning(&engine);
    {
      const Watchdog watchdog(d->scriptTimeoutMs, [this] { d->interruption.endScript(); });
      script.run(choice.functions);
    }
    isTimeOver = d->interruption.isScriptEnded() && !d->interruption.isRunEnded();
    d->interruption.setRunning(nullptr);
  }
  Inspector::self()->takeScriptError();
  if (isTimeOver) {
    result.error = timeOverText(d->scriptTimeoutMs);
  }
  if (d->interruption.isRunEnded()) {
    result.interrupted = true;
    result.error = interruptedText;
  }
  if (!result.error.isEmpty() && result.trace.empty()) {
    result.trace = {{choice.path, 0, QString(), QString()}};
  }
  result.attempt = choice.attempt;
  result.runsAgain = choice.attempt < choice.attempts && !result.interrupted && !result.whole().passed();
  result.durationMs = timer.elapsed();
  d->listener->scriptFinished(result);
  return result;
}

RunSummary ScriptEngine::run(const QStringList& paths) {
  std::vector<ScriptChoice> scripts;
  for (const QString& path : paths) {
    scripts.push_back({path, {}});
  }
  return run(scripts);
}

RunSummary ScriptEngine::run(const std::vector<ScriptChoice>& scripts, const RunPolicy& policy) {
  RunSummary summary;
  for (ScriptChoice script : scripts) {
    if (isInterrupted() || policy.isOver(summary)) {
      summary.notRun << script.path;
      continue;
    }
    script.attempts = policy.retries + 1;
    ScriptResult result = runScript(script);
    while (result.runsAgain) {
      summary.add(result);
      ++script.attempt;
      result = runScript(script);
    }
    summary.add(result);
  }
  d->listener->runFinished(summary);
  return summary;
}

void ScriptEngine::setScriptTimeout(int milliseconds) { d->scriptTimeoutMs = milliseconds; }

void ScriptEngine::interrupt() { d->interruption.endRun(); }

bool ScriptEngine::isInterrupted() const { return d->interruption.isRunEnded(); }

}  // namespace Corvex::Scripting
