#pragma once

#include "wrappers/web/export.h"

namespace Corvex::WebWrapper {

/// Registers the script classes of page objects and what belongs to them. To be called once, before all else.
CORVEX_WEBWRAPPER_EXPORT void createWebObjectClasses();

}  // namespace Corvex::WebWrapper
