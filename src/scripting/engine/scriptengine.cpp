#include "scripting/engine/scriptengine.h"

#include <QElapsedTimer>
#include <QJSEngine>
#include <QMutex>
#include <atomic>

#include "corvexhook/inspector.h"
#include "scripting/engine/scriptrun.h"

// Outside of any namespace, as Qt asks for it.
static void initResources() { Q_INIT_RESOURCE(scripting); }

namespace Corvex::Scripting {

namespace {

const QString interruptedText = QStringLiteral("interrupted");

/// While it lives, the waits and lookups of the framework end with an error when the run is interrupted.
class Interruptible {
public:
  explicit Interruptible(const std::atomic<bool>& interrupted) { Inspector::self()->setInterruption(&interrupted); }
  ~Interruptible() { Inspector::self()->setInterruption(nullptr); }

  Interruptible(const Interruptible&) = delete;
  Interruptible& operator=(const Interruptible&) = delete;
};

}  // namespace

struct ScriptEngine::Private {
  Private(const ScriptHost& scriptHost, ScriptListener* scriptListener)
      : host(scriptHost), listener(scriptListener), calls(scriptListener) {}

  void setRunning(QJSEngine* engine) {
    const QMutexLocker locker(&mutex);
    running = engine;
    if (engine && interrupted) {
      engine->setInterrupted(true);
    }
  }

  ScriptHost host;
  ScriptListener* listener;
  MemberCalls calls;
  QMutex mutex;
  QJSEngine* running = nullptr;
  std::atomic<bool> interrupted{false};
};

ScriptEngine::ScriptEngine(const ScriptHost& host, ScriptListener* listener) : d(new Private(host, listener)) {
  initResources();
}

ScriptEngine::~ScriptEngine() = default;

ScriptResult ScriptEngine::runFile(const QString& path) {
  ScriptResult result;
  result.path = path;
  d->listener->scriptStarted(path);
  QElapsedTimer timer;
  timer.start();
  // What an earlier script left behind is none of this one's errors.
  Inspector::self()->takeScriptError();
  {
    const Interruptible interruptible(d->interrupted);
    QJSEngine engine;
    ScriptRun script(&engine, d->host, &d->calls, d->listener, &result);
    d->setRunning(&engine);
    script.run();
    d->setRunning(nullptr);
  }
  Inspector::self()->takeScriptError();
  if (d->interrupted) {
    result.interrupted = true;
    result.error = interruptedText;
  }
  result.durationMs = timer.elapsed();
  d->listener->scriptFinished(result);
  return result;
}

RunSummary ScriptEngine::run(const QStringList& paths) {
  RunSummary summary;
  for (const QString& path : paths) {
    if (d->interrupted) {
      break;
    }
    summary.add(runFile(path));
  }
  d->listener->runFinished(summary);
  return summary;
}

void ScriptEngine::interrupt() {
  const QMutexLocker locker(&d->mutex);
  d->interrupted = true;
  if (d->running) {
    d->running->setInterrupted(true);
  }
}

bool ScriptEngine::isInterrupted() const { return d->interrupted; }

}  // namespace Corvex::Scripting
