#pragma once

#include <QByteArray>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVector>
#include <optional>

#include "scripting/scriptresult.h"

namespace Corvex::Scripting {

/// A global function was called, or a member of an object was used, and has ended.
struct Step {
  QString text;
  qint64 durationMs = 0;
  /// Where it stands in the script; of a long trace the innermost calls.
  ScriptTrace trace;
  /// What went wrong; empty when it went well.
  QString error;
};

/// What a check has compared, as texts.
struct Comparison {
  QString actual;
  QString expected;
};

struct Check {
  bool passed = false;
  QString text;
  ScriptTrace trace;
  std::optional<Comparison> comparison;
};

/// A page had something to say.
struct PageMessage {
  /// "uncaught" for an error that the page did not catch, otherwise the level of the message, such as "warning".
  QString kind;
  QString text;

  bool isUncaught() const { return kind == QLatin1String("uncaught"); }
};

/// A picture of the page in the current window.
struct Picture {
  enum class Purpose {
    Failure,  ///< Shows what there was when something failed.
    Step      ///< Small; shows what there was after a step.
  };

  Purpose purpose = Purpose::Failure;
  /// Empty where none could be taken.
  QByteArray bytes;
  QString mimeType;
  /// As the page was seen; the bytes may hold it smaller.
  QSize size;
  /// The place of the object that it was about, in pixels of that size; empty where none is known.
  QRect marked;
  /// Why there is no picture; a sentence.
  QString missing = {};
};

/// A fact about the machine, the browser or how the run was started.
struct Fact {
  QString name;
  QString value;
};

}  // namespace Corvex::Scripting
