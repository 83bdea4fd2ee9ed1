#pragma once

#include "scripting/scriptfunction.h"

namespace Corvex::Webhook {

class BrowserControl;

/// The functions of test scripts that act as a person does, with the browser's own input. `control` outlives them.
std::vector<Scripting::ScriptFunction> inputFunctions(BrowserControl& control);

}  // namespace Corvex::Webhook
