#pragma once

#include "wrappers/web/export.h"

#include <QString>

#include <vector>

namespace Corvex::WebWrapper {

/// A script of a toolkit, which joins the hook script.
struct ExtensionScript {
  QString path;
  QString text;
};

/// The files "*.js" of the directory "lib/extensions/web" below `CORVEX_PREFIX` in name order, read anew at each call.
/// A setting of "webwrapper.ini", "name = false" in the group "Extensions", leaves the file "name.js" out.
/// One that cannot be read is reported on the standard error stream and counts as empty.
CORVEX_WEBWRAPPER_EXPORT std::vector<ExtensionScript> extensionScripts();

}  // namespace Corvex::WebWrapper
