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
  /// The innermost function with a name that the line stands in, as far as the calls of that line tell; empty without.
  QString function;
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
  /// The titles of the groups of `test.step` that it stands in, the outermost first.
  QStringList groups;

  /// The text with the titles before it: "Basket: Sum: got 1, but expected 2".
  CORVEXSCRIPTING_EXPORT QString fullText() const;
};

/// What came of a script's body, or of one of its test functions.
struct Outcome {
  /// Why it stopped before its end; empty when it did not.
  QString error;
  /// Where it stopped; never empty after an error.
  ScriptTrace trace;
  int checksPassed = 0;
  std::vector<FailedCheck> failedChecks;
  /// It ended itself by `test.skip`.
  bool isSkipped = false;
  QString skipReason;
  qint64 durationMs = 0;

  int checksFailed() const { return static_cast<int>(failedChecks.size()); }
  int checks() const { return checksPassed + checksFailed(); }
  /// No failure; what was skipped has passed, too.
  bool passed() const { return error.isEmpty() && failedChecks.empty(); }
  /// "passed", "FAILED" or "skipped".
  CORVEXSCRIPTING_EXPORT QString verdict() const;
};

/// What came of a test function, with the `setUp` and `tearDown` around it.
struct FunctionResult : Outcome {
  QString name;
};

/// What came of one script: of its body, and of each of its test functions.
struct ScriptResult : Outcome {
  /// As it was given to the engine.
  QString path;
  std::vector<FunctionResult> functions;
  /// Ended by `ScriptEngine::interrupt`.
  bool interrupted = false;
  /// Which attempt at the script it was, from 1 on.
  int attempt = 1;
  /// It failed, and the next attempt follows.
  bool runsAgain = false;

  /// It passed, after an attempt that failed.
  CORVEXSCRIPTING_EXPORT bool isFlaky() const;

  /// The body and all functions together, with the first error of all. Skipped, if the body or each function was.
  CORVEXSCRIPTING_EXPORT Outcome whole() const;
};

/// What came of several scripts, as of the last attempt at each.
struct RunSummary {
  int scripts = 0;
  /// The flaky ones, too.
  int passed = 0;
  int flaky = 0;
  int skipped = 0;
  int checks = 0;
  int checksFailed = 0;
  /// Of all attempts.
  qint64 durationMs = 0;
  /// The paths of those that were to run, too, when the run ended.
  QStringList notRun;

  CORVEXSCRIPTING_EXPORT void add(const ScriptResult& result);
  int failed() const { return scripts - passed - skipped; }
  /// "3 scripts: 1 passed, 1 failed, 1 skipped; 14 checks, 1 failed; 3.2 s"; kinds that are rarer only where there are
  /// any: "4 scripts: 3 passed (1 flaky), 1 failed, 2 not run; ...".
  CORVEXSCRIPTING_EXPORT QString text() const;
};

}  // namespace Corvex::Scripting
