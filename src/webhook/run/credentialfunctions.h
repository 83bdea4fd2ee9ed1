#pragma once

#include "scripting/scriptfunction.h"

namespace Corvex::Webhook {

class BrowserControl;

/// The global functions of test scripts that are about servers which ask for a user and a password. `control` outlives
/// them.
std::vector<Scripting::ScriptFunction> credentialFunctions(BrowserControl& control);

}  // namespace Corvex::Webhook
