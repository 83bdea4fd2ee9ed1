#pragma once

#include "wrappers/web/export.h"

#include <QString>

namespace Corvex::WebWrapper {

/// Tells the spy which object a person picked, as "objectPicked" with the name as its argument. Without a spy, whoever
/// has the default connection is told.
CORVEX_WEBWRAPPER_EXPORT void sendObjectPickedToSpy(const QString& objectName);

}  // namespace Corvex::WebWrapper
