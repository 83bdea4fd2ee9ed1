#pragma once

#include <QString>

namespace Corvex {
namespace WebWrapper {

/// What the evaluation of a JavaScript text gave. Success means that both flags are clear.
struct JavaScriptAnswer {
  /// On success the value of the last expression as text, on failure the error message.
  QString text;
  /// The evaluation raised an error.
  bool failed = false;
  /// The evaluation did not run to its end.
  bool aborted = false;

  bool succeeded() const { return !failed && !aborted; }
};

}  // namespace WebWrapper
}  // namespace Corvex
