#pragma once

#include <QString>

#include <cstdio>

#include "shared/export.h"

namespace Corvex {

/// Writes a text as UTF-8 at once, as it is. Answers why not, or an empty text.
CORVEX_EXPORT QString writeText(std::FILE* stream, const QString& text);

}  // namespace Corvex
