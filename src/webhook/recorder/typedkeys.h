#pragma once

#include <QString>

namespace Corvex::Webhook {

/// Shift, the arrows and others: they change a field only where the page or the browser makes more of them.
bool isKeyWithoutText(int keyCode);

/// Whether typing the text would take parts of it for keys.
bool readsAsKeys(const QString& text);

}  // namespace Corvex::Webhook
