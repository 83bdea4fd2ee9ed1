#pragma once

#include <QJSValue>

#include "scripting/engine/scriptfiles.h"

class QJSEngine;

namespace Corvex::Scripting {

/// What came of running a file.
struct Evaluation {
  QJSValue thrown;
  bool failed = false;
};

/// Runs a script file in the global scope of the engine. One that cannot be read throws an error that says so.
Evaluation evaluateFile(QJSEngine* engine, ScriptFiles* files, const QString& absolutePath);

}  // namespace Corvex::Scripting
