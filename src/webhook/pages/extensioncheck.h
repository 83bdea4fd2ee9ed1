#pragma once

#include <QString>

#include <functional>

namespace Corvex::Webhook {

/// Why the hook script failed in a page: names the extension script that is to blame, if one is. `evaluate` gives the
/// error of a text as the page evaluates it, empty when it has none; `error` is that of the whole hook script.
QString extensionError(const std::function<QString(const QString& code)>& evaluate, const QString& error);

}  // namespace Corvex::Webhook
