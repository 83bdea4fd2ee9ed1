#pragma once

#include <QString>

namespace Corvex {

/// What came of evaluating JavaScript in a page. Success means that both flags are clear.
struct JavaScriptAnswer {
  /// On success the value of the last statement as String() gives it; else a sentence or the exception's text.
  QString text;
  /// The code threw, or could not be read as code.
  bool failed = false;
  /// The code did not run to its end, or its answer did not come; `text` says why.
  bool aborted = false;

  bool succeeded() const { return !failed && !aborted; }
};

namespace WebWrapper {
using Corvex::JavaScriptAnswer;
}

}  // namespace Corvex
