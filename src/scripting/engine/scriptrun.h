#pragma once

#include "scripting/engine/scriptbridge.h"
#include "scripting/engine/scriptfiles.h"

namespace Corvex::Scripting {

/// One run of a script file in an engine of its own.
class ScriptRun {
public:
  /// Borrows all but the functions of the host.
  ScriptRun(QJSEngine* engine, const ScriptHost& host, MemberCalls* calls, ScriptListener* listener,
            ScriptResult* result);

  /// Runs the file of the result to its end, or to its first error.
  void run();

private:
  bool loadPrelude();
  void fail(const QString& error, const ScriptTrace& trace);

  QJSEngine* m_engine;
  ScriptResult* m_result;
  ScriptFiles m_files;
  ScriptBridge m_bridge;
};

}  // namespace Corvex::Scripting
