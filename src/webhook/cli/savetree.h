#pragma once

#include "scripting/scriptfunction.h"

namespace Corvex::Webhook {

class BrowserControl;

/// saveTree(file): writes the page as `corvexweb dump` does. `control` outlives the function.
Scripting::ScriptFunction saveTreeFunction(BrowserControl& control);

}  // namespace Corvex::Webhook
