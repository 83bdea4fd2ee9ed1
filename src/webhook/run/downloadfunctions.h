#pragma once

#include "scripting/scriptfunction.h"

namespace Corvex::Webhook {

class BrowserControl;

/// The global functions of test scripts that are about files which pages download. `control` outlives them.
std::vector<Scripting::ScriptFunction> downloadFunctions(BrowserControl& control);

}  // namespace Corvex::Webhook
