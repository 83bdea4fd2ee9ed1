#pragma once

#include "scripting/engine/scriptengine.h"
#include "shared/functioncallresult.h"

#include <QString>

namespace Corvex::Webhook {

/// The descriptor to which a worker, a process that runs one script of a run, writes the events of it: a line of JSON
/// each.
constexpr int workerEventDescriptor = 3;

/// What a worker is to run, as an argument of its command line.
QString workerRequest(const Scripting::ScriptChoice& script);

/// Reads such an argument. The error says what it takes.
FunctionCallResult<Scripting::ScriptChoice> readWorkerRequest(const QString& text);

}  // namespace Corvex::Webhook
