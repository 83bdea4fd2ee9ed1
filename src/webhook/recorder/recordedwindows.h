#pragma once

#include <QString>

namespace Corvex::Webhook {

class BrowserWindows;
class Connection;

/// The windows of a browser as the script of a recording is to name them. Asks no page.
class RecordedWindows {
public:
  explicit RecordedWindows(const BrowserWindows& windows) : m_windows(windows) {}

  /// The window that an event came from. A page tells its `tabId` only once it has been asked something; before, it is
  /// known by the context that it tells. Empty for a window that went.
  QString windowOf(const QString& tabId, const QString& context) const;
  /// The context's name for scripts, by the one inside the page of that window.
  QString outside(const QString& tabId, const QString& context) const;
  /// The same for a window itself, which may have been closed a moment ago.
  QString nameOf(const Connection& window) const;
  /// The one that is current once the current one is closed.
  QString newest() const;

private:
  const BrowserWindows& m_windows;
};

}  // namespace Corvex::Webhook
