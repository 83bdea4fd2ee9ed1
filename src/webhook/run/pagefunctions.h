#pragma once

#include "scripting/scriptfunction.h"

namespace Corvex::Webhook {

class BrowserControl;

/// The functions of test scripts about what a page keeps beside its elements: its console, cookies and storage, and its
/// size. `control` outlives them.
std::vector<Scripting::ScriptFunction> pageFunctions(BrowserControl& control);

}  // namespace Corvex::Webhook
