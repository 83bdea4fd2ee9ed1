#pragma once

#include <QString>

namespace Corvex::Webhook {

/// The dialog kind by whose function a script answers a dialog: the question whether to leave a page is a confirm.
QString answeredAs(const QString& kind);

/// What a call is told that a dialog blocks; `who` shows it.
QString dialogSentence(const QString& who, const QString& kind, const QString& text);

}  // namespace Corvex::Webhook
