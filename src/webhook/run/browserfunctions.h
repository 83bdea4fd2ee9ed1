#pragma once

#include "scripting/scriptfunction.h"

namespace Corvex::Webhook {

class BrowserControl;

/// The global functions of test scripts that are about the browser itself: its start, windows, contexts and dialogs.
/// `control` outlives them.
Scripting::ScriptHost browserFunctions(BrowserControl& control);

}  // namespace Corvex::Webhook
