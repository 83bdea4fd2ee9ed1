#pragma once

#include <QMutex>
#include <atomic>

class QJSEngine;

namespace Corvex::Scripting {

/// Ends scripts, also while they compute: no `catch` and no `finally` of theirs runs. The framework's waits and lookups
/// end, too. Any thread may end the run or a script, but no signal handler.
class Interruption {
public:
  Interruption();
  ~Interruption();

  /// The engine of the script that begins, which has not been ended; null once it is over.
  void setRunning(QJSEngine* engine);

  /// Ends the running script and all that would come after it.
  void endRun();
  /// Ends the running script; nothing happens where none runs.
  void endScript();
  /// Ends the code that runs now. Once it has returned, `resume` lets the script's next function run, unless the script
  /// has been ended, too.
  void endCode();
  void resume();

  bool isRunEnded() const { return m_isRunEnded; }
  bool isScriptEnded() const { return m_isScriptEnded; }

  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;

private:
  QMutex m_mutex;
  QJSEngine* m_running = nullptr;
  std::atomic<bool> m_isRunEnded{false};
  /// Set with that of the run, too.
  std::atomic<bool> m_isScriptEnded{false};
};

}  // namespace Corvex::Scripting
