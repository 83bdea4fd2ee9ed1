#pragma once

#include <QString>
#include <QStringList>

#include "wrappers/web/export.h"

namespace Corvex {
namespace WebWrapper {

class WrapperConfig;

/// The complete hook script: the built-in fragments, the extension scripts "*.js" of the directory "lib/extensions/web"
/// below `CORVEX_PREFIX` in name order, the framework's extension code, and the XPath evaluator.
///
/// Extension scripts are read as `extensionScripts` does. The text is not checked in any way. To be called from one
/// thread at a time.
CORVEX_WEBWRAPPER_EXPORT QString getJSCode(const WrapperConfig& config);

/// The same with these texts in the place of the extension scripts.
CORVEX_WEBWRAPPER_EXPORT QString getJSCode(const WrapperConfig& config, const QStringList& extensions);

/// The text that creates the page-wide namespace object `window.top.__corvex`, unless it is there already. It has to
/// run in a page before the hook script, and may run any number of times.
CORVEX_WEBWRAPPER_EXPORT QString getCorvexJsNamespaceInitCode();

}  // namespace WebWrapper
}  // namespace Corvex
