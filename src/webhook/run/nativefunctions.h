#pragma once

#include "corvexhook/object.h"

#include <QString>

namespace Corvex::Webhook {

class BrowserControl;

// What scripts do with pointer and keyboard of the screen. Each answers an error text, empty on success.

/// nativeMouseClick(object[, button]): the object's middle, as far as it can be seen.
QString nativeMouseClick(BrowserControl& control, const ObjectList& arguments);

/// nativeType(keys)
QString nativeType(BrowserControl& control, const QString& keys);

}  // namespace Corvex::Webhook
