#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "scripting/export.h"

namespace Corvex::Scripting {

/// A line of a script. `line` counts from 1; 0 means that it isn't known.
struct ScriptLocation {
  QString file;
  int line = 0;
  /// The text of that line, without the blanks around it.
  QString sourceLine;

  /// "file:line", or the file alone; empty without a file.
  CORVEXSCRIPTING_EXPORT QString text() const;
};

/// Where in the scripts something happened: the innermost call first, then its caller, and so on.
using ScriptTrace = std::vector<ScriptLocation>;

/// "lib.js:3, called from test.js:7"
CORVEXSCRIPTING_EXPORT QString traceText(const ScriptTrace& trace);
/// A line for each location, with the text that stands there. Of a long trace the middle is left out.
CORVEXSCRIPTING_EXPORT QStringList traceLines(const ScriptTrace& trace);

/// A check of a script that did not hold.
struct FailedCheck {
  QString text;
  ScriptTrace trace;
};

/// What came of one script.
struct ScriptResult {
  /// As it was given to the engine.
  QString path;
  /// Why the script stopped before its end; empty when it did not.
  QString error;
  /// Where it stopped; never empty after an error.
  ScriptTrace trace;
  int checksPassed = 0;
  std::vector<FailedCheck> failedChecks;
  qint64 durationMs = 0;
  /// Ended by `ScriptEngine::interrupt`.
  bool interrupted = false;

  int checksFailed() const { return static_cast<int>(failedChecks.size()); }
  int checks() const { return checksPassed + checksFailed(); }
  bool passed() const { return error.isEmpty() && failedChecks.empty(); }
};

/// What came of several scripts.
struct RunSummary {
  int scripts = 0;
  int passed = 0;
  int checks = 0;
  int checksFailed = 0;
  qint64 durationMs = 0;

  CORVEXSCRIPTING_EXPORT void add(const ScriptResult& result);
  int failed() const { return scripts - passed; }
  /// "3 scripts: 2 passed, 1 failed; 14 checks, 1 failed; 3.2 s"
  CORVEXSCRIPTING_EXPORT QString text() const;
};

}  // namespace Corvex::Scripting
