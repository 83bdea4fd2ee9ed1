#pragma once

#include <QString>

namespace Corvex {

namespace WebWrapper {
class WrapperConfig;
}

namespace Webhook {

/// Which browser a page runs in, as the hook script is told by its flags; the script never looks at the user agent.
struct BrowserIdentity {
  enum Family { Chromium, Chrome, Firefox };

  Family family = Chromium;
  int majorVersion = 0;
  /// Where pages send their messages, see MessageEndpoint::place(); "" leaves them in the queue of the session.
  QString messagePort;
  /// Whether dialogs open as the browser's own, which its protocol answers; otherwise pages swallow alerts, and wait
  /// for the answer to the others.
  bool opensNativeDialogs = true;
  /// Whether pages tell of what happens in them.
  bool isRecorded = false;
};

/// The text that hooks a top page: browser flags and configuration values, then the namespace prelude, then the hook
/// script. It runs at document start of every new document, before the page's own scripts; in a frame, and in a page
/// that is hooked already, it does nothing.
QString hookText(const WebWrapper::WrapperConfig& config, const BrowserIdentity& browser);

}  // namespace Webhook
}  // namespace Corvex
