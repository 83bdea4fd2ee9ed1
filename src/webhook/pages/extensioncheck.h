#pragma once

#include <QString>

namespace Corvex {

namespace WebWrapper {
class HTMLComponent;
}

namespace Webhook {

/// Why the hook script could not be evaluated in a page: the sentence for `error`, which names the extension script
/// that it comes from, found by evaluating each of them alone.
QString extensionError(WebWrapper::HTMLComponent& component, const QString& error);

}  // namespace Webhook
}  // namespace Corvex
