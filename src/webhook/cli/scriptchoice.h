#pragma once

#include "scripting/engine/scriptengine.h"
#include "shared/functioncallresult.h"

#include <QStringList>

#include <vector>

namespace Corvex::Webhook {

/// The scripts that a run was asked for. A path is that of a script, or of a folder: it stands for the scripts below
/// it, in the order of their paths, without those that are there to be sourced: files and folders whose names begin
/// with an underscore or a dot, and folders named "lib" or "node_modules".
///
/// Of these a filter keeps the scripts whose paths fit, from the given folder on, and of others the test functions
/// whose names fit. It is a part of the path or name, or with "*" or "?" the whole; its case counts for nothing. The
/// error says what is wrong with the paths, or that nothing fits.
FunctionCallResult<std::vector<Scripting::ScriptChoice>> chooseScripts(const QStringList& paths,
                                                                       const QStringList& filters);

/// What `corvexweb run --list` prints: each script, and on the lines after it the test functions of it that would run.
QString scriptList(const std::vector<Scripting::ScriptChoice>& scripts);

}  // namespace Corvex::Webhook
