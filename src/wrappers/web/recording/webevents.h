#pragma once

#include "wrappers/web/export.h"

namespace Corvex {

/// Adds the events of web pages to the global class, where `Class::event` finds them: those that recorded input
/// becomes, and those that scripts send. To be called once, before either happens.
CORVEX_WEBWRAPPER_EXPORT void initWebEvents();

}  // namespace Corvex
