#pragma once

#include "scripting/liveobjects.h"
#include "scripting/membercalls.h"
#include "scripting/scriptfunction.h"

namespace Corvex::Scripting {

/// The functions that every script has: lookup, input and pauses. They borrow
/// both arguments for as long as they are called.
std::vector<ScriptFunction> standardFunctions(MemberCalls* calls, LiveObjects* liveObjects);

}  // namespace Corvex::Scripting
