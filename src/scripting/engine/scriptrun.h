#pragma once

#include "scripting/engine/evaluation.h"
#include "scripting/engine/interruption.h"
#include "scripting/engine/scriptbridge.h"
#include "scripting/engine/scriptfiles.h"

namespace Corvex::Scripting {

/// One run of a script file in an engine of its own.
class ScriptRun {
public:
  /// Borrows all but the functions of the host.
  ScriptRun(QJSEngine* engine, const ScriptHost& host, MemberCalls* calls, ScriptListener* listener,
            ScriptResult* result, Interruption* interruption);

  /// Runs the file of the result to its end, or to its first error; then `main` and the test functions that it has
  /// defined, or those of these names, each between `setUp` and `tearDown`. Without any there is `tearDown` alone.
  void run(const QStringList& chosenFunctions);

private:
  bool loadPrelude();
  QStringList testFunctions() const;
  void runBody();
  void runTestFunctions(const QStringList& names);
  void runTestFunction(const QString& name);
  /// Calls a function, if the script has defined it. False after an error or a skip, which then stand in the outcome.
  bool call(const QString& name, Outcome* outcome);
  bool noteEnd(const Evaluation& evaluation, Outcome* outcome);
  void fail(const QString& error);

  QJSEngine* m_engine;
  ScriptListener* m_listener;
  ScriptResult* m_result;
  Interruption* m_interruption;
  ScriptFiles m_files;
  ScriptBridge m_bridge;
  /// The functions that the script has defined, in their order.
  QStringList m_functions;
};

}  // namespace Corvex::Scripting
