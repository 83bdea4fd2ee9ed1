#pragma once

#include <QString>

namespace Corvex::Webhook {

/// What a page wrote to its console, or an error that nothing in it caught.
struct ConsoleMessage {
  QString level;  ///< "debug", "info", "warn" or "error".
  QString text;   ///< The arguments, parted by blanks; objects by their kind alone.
  QString url;    ///< Of the script, "" where it is not known.
  int line = 0;   ///< From 1 on, 0 where it is not known.
  bool isUncaught = false;
};

}  // namespace Corvex::Webhook
