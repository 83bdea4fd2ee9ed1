#pragma once

#include <QString>

namespace Corvex::Webhook {

/// Waits until a file dialog is open on the screen, types an absolute path into it and accepts it, by real input. An
/// error, or an empty text once the dialog is closed.
QString chooseFile(const QString& path, int timeoutMs);

}  // namespace Corvex::Webhook
