#pragma once

#include "wrappers/web/export.h"

namespace Corvex::WebWrapper {

/// Lets the milliseconds pass while the process's events are served, so that other work of this thread can run
/// meanwhile.
CORVEX_WEBWRAPPER_EXPORT void gentleSleep(int milliseconds);

}  // namespace Corvex::WebWrapper
