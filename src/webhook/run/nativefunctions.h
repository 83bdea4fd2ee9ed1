#pragma once

#include "corvexhook/object.h"

#include <QString>

namespace Corvex::Webhook {

class BrowserControl;

// What scripts do with pointer and keyboard of the screen. Each answers an error text, empty on success.

/// screenClick(object[, button]): the object's middle, as far as it can be seen.
QString screenClick(BrowserControl& control, const ObjectList& arguments);

/// screenType(keys)
QString screenType(BrowserControl& control, const QString& keys);

}  // namespace Corvex::Webhook
