#pragma once

#include <QString>

#include "shared/export.h"

namespace Corvex {

/// What becomes of a "%" whose digits are missing or are not hexadecimal.
enum class MalformedEscape {
  Keep,   ///< It stays as it is.
  AddUp,  ///< It yields what its digits add up to, others counting as 0; a last "%" stays.
};

/// Undoes JavaScript's global `escape`: %XX and %uXXXX are one UTF-16 code unit each.
CORVEX_EXPORT QString undoEscape(const QString& text, MalformedEscape malformed = MalformedEscape::Keep);

}  // namespace Corvex
