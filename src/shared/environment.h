#pragma once

#include <QString>

#include "shared/export.h"

namespace Corvex {

/// The value of an environment variable; the empty text when it is not set.
CORVEX_EXPORT QString environmentVariable(const char* name);

/// The installation's root from `CORVEX_PREFIX`, as it stands there: no check, no fallback, empty when not set.
CORVEX_EXPORT QString corvexPrefix();

/// Replaces "$(NAME)" by the value of the environment variable NAME, and "$$" by one "$". A variable that is unset or
/// empty leaves its "$(NAME)" in place, and so does every other use of "$".
CORVEX_EXPORT QString expandEnvironmentVariables(const QString& text);

/// The user's settings root: `CORVEX_USER_SETTINGS_DIR`, or ".corvex" in the home directory when that is empty or
/// unset. The directory is created with all its parents.
CORVEX_EXPORT QString corvexSettingsDir();

/// The directory of the user's settings files of this version: "ver1" below corvexSettingsDir(). It may not exist yet.
CORVEX_EXPORT QString userSettingsDir();

/// The home directory.
CORVEX_EXPORT QString settingsDir();

}  // namespace Corvex
