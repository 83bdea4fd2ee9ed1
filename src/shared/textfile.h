#pragma once

#include "shared/functioncallresult.h"

#include <QString>

#include "shared/export.h"

namespace Corvex {

/// Reads a file that a user has written: a script, a map, settings. It has to be a regular file of at most 16 MB, in
/// UTF-8 and without NUL characters. Line ends stay as they are; a byte order mark is left out. The error tells the
/// reason alone, without a full stop, so that the caller says of which file: "it is a directory".
CORVEX_EXPORT FunctionCallResult<QString> readTextFile(const QString& path);

}  // namespace Corvex
