#pragma once

#include <QStringList>
#include <memory>
#include <vector>

#include "scripting/export.h"
#include "scripting/scriptfunction.h"
#include "scripting/scriptlistener.h"
#include "scripting/scriptresult.h"

namespace Corvex::Scripting {

/// A script that is to run.
struct ScriptChoice {
  QString path;
  /// Those of its test functions that are to run; empty for all.
  QStringList functions;
  /// Which attempt at the script this is, and how many there may be.
  int attempt = 1;
  int attempts = 1;
};

/// How a run goes on after failures.
struct RunPolicy {
  /// How often a script that failed runs again.
  int retries = 0;
  /// After how many failed scripts the run ends; 0 for none.
  int stopAfter = 0;

  bool isOver(const RunSummary& summary) const { return stopAfter > 0 && summary.failed() >= stopAfter; }
};

/// Runs JavaScript test scripts on the object model of the framework. Belongs
/// to the framework's thread, but for `interrupt`.
class CORVEXSCRIPTING_EXPORT ScriptEngine {
public:
  /// Borrows the listener.
  ScriptEngine(const ScriptHost& host, ScriptListener* listener);
  ~ScriptEngine();

  /// Runs a script in a scope of its own. No failure of the script is one of
  /// the engine: all of them stand in the result.
  ScriptResult runFile(const QString& path) { return runScript({path, {}}); }
  /// One attempt at it. It runs again if that failed, the run was not ended, and an attempt is left; that is up to the
  /// caller.
  ScriptResult runScript(const ScriptChoice& script);
  /// Runs the scripts one after the other, each whatever came of those before;
  /// after `interrupt` none any more.
  RunSummary run(const QStringList& paths);
  RunSummary run(const std::vector<ScriptChoice>& scripts, const RunPolicy& policy = {});

  /// A script that takes longer is ended with an error; the next one runs. 0, as at first, for no limit.
  void setScriptTimeout(int milliseconds);

  /// Ends the running script, which gets the error "interrupted", and all
  /// scripts after it. From any thread, but not from a signal handler. A
  /// script that waits or sleeps ends when the host's sleep returns.
  void interrupt();
  bool isInterrupted() const;

  ScriptEngine(const ScriptEngine&) = delete;
  ScriptEngine& operator=(const ScriptEngine&) = delete;

private:
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace Corvex::Scripting
