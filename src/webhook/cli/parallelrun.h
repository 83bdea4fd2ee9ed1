#pragma once

#include "scripting/engine/scriptengine.h"
#include "scripting/report/progressline.h"
#include "webhook/cli/worker.h"

#include <QFile>
#include <QStringList>

#include <memory>
#include <vector>

namespace Corvex::Webhook {

/// Runs scripts side by side, each in a process of its own.
class ParallelRun {
public:
  struct Plan {
    std::vector<Scripting::ScriptChoice> scripts;
    Scripting::RunPolicy policy;
    int jobs = 1;
    /// The command line that a worker gets, after its request.
    QStringList arguments;
  };

  explicit ParallelRun(const Plan& plan);
  ~ParallelRun();

  /// Why nothing can run; empty when all is well.
  QString whyNotRun() const;

  /// Told of each script when it has ended.
  void showTo(Scripting::ScriptListener* listener) { m_shown = listener; }
  /// Told of the scripts in their order, of each when it and those before it have ended.
  void reportTo(Scripting::ScriptListener* listener) { m_report = listener; }
  /// Told of the beginnings and ends of scripts as they come, and of no more.
  void followWith(Scripting::ScriptListener* listener) { m_followed = listener; }

  /// Answers when all have ended, or after stop().
  Scripting::RunSummary run();
  /// Ends all that runs; nothing new begins.
  void stop() { m_isStopped = true; }

  /// Whether, in an attempt that was the last one at its script, a browser could not be started or was lost.
  bool hadBrowserFailure() const { return m_browserFailure; }

private:
  struct Script;

  void begin(Script* script);
  void beginMore();
  void collect();
  void finishAttempt(Script* script);
  /// Without `all` those that still run, and what comes after them, are left for later.
  void tellInOrder(bool all = false);

  Plan m_plan;
  TemporaryDirectory m_directory;
  std::vector<std::unique_ptr<Script>> m_scripts;
  std::size_t m_begun = 0;
  std::size_t m_told = 0;
  Scripting::RunSummary m_summary;
  Scripting::ScriptListener m_nobody;
  Scripting::ScriptListener* m_shown = &m_nobody;
  Scripting::ScriptListener* m_report = &m_nobody;
  Scripting::ScriptListener* m_followed = &m_nobody;
  bool m_isStopped = false;
  bool m_browserFailure = false;
};

}  // namespace Corvex::Webhook
