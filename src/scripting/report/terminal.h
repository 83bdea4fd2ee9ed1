#pragma once

#include <QString>
#include <cstdio>

#include "scripting/export.h"

namespace Corvex::Scripting {

/// Whether the stream is a terminal that understands commands, as all do but those whose TERM is "dumb" or missing.
CORVEXSCRIPTING_EXPORT bool isCapableTerminal(std::FILE* stream);

/// How many characters fit into a line of it.
CORVEXSCRIPTING_EXPORT int terminalWidth(std::FILE* stream);

/// As much of a text without control characters as fits into the width. Characters that may take two columns count so.
CORVEXSCRIPTING_EXPORT QString cutToWidth(const QString& text, int width);

}  // namespace Corvex::Scripting
