#pragma once

#include "shared/wait.h"

#include <QDateTime>

namespace Corvex::WebWrapper {

using Corvex::gentleSleep;

/// Milliseconds since the epoch.
unsigned long long now();

/// False, with `*out` untouched, for 0; otherwise whether the time is valid.
bool msecsToDateTime(unsigned long long msecs, QDateTime* out);

}  // namespace Corvex::WebWrapper
