#pragma once

#include "corvexhook/class.h"

namespace Corvex {

/// Registers "ScreenRectangle" and "DateTime".
void createValueClasses(Namespace* ns);

}  // namespace Corvex
