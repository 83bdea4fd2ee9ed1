#pragma once

#include "scripting/scriptfunction.h"

namespace Corvex::Webhook {

class BrowserControl;

/// The functions of test scripts that have a window go to another page, and tell which one it shows. `control` outlives
/// them.
std::vector<Scripting::ScriptFunction> navigationFunctions(BrowserControl& control);

}  // namespace Corvex::Webhook
