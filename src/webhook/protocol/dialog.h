#pragma once

#include <QString>

namespace Corvex::Webhook {

/// A dialog that a page shows and that keeps its scripts from going on.
struct Dialog {
  QString kind;         ///< "alert", "confirm", "prompt" or "beforeunload".
  QString text;         ///< What it says.
  QString defaultText;  ///< What a prompt's field holds at first.
  QString url;          ///< The page or frame that shows it.
};

}  // namespace Corvex::Webhook
