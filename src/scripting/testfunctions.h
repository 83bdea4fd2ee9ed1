#pragma once

#include <QStringList>

#include "scripting/export.h"

namespace Corvex::Scripting {

/// Whether a script's function of this name is run as a test: `main`, and those like `testLogin` and `test_1`, but not
/// `testing`.
CORVEXSCRIPTING_EXPORT bool isTestFunction(const QString& name);

/// The functions that a script's text declares at the beginnings of lines, in their order; of the script engine that
/// order cannot be learned. Nothing of the text is run.
CORVEXSCRIPTING_EXPORT QStringList declaredFunctions(const QString& text);

/// Those of them that are run as tests.
CORVEXSCRIPTING_EXPORT QStringList declaredTestFunctions(const QString& text);

}  // namespace Corvex::Scripting
