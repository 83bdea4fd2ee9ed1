#pragma once

#include <QString>

#include <cstdio>
#include <system_error>

#include "shared/export.h"

namespace Corvex {

/// Writes a text as UTF-8 at once, as it is. Answers what went wrong.
CORVEX_EXPORT std::error_code writeText(std::FILE* stream, const QString& text);

}  // namespace Corvex
