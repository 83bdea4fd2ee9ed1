#include "webhook/recorder/recordedwindows.h"

#include "webhook/pages/browserwindows.h"
#include "webhook/pages/windownames.h"

namespace Corvex::Webhook {

QString RecordedWindows::windowOf(const QString& tabId, const QString& context) const {
  const QString page = context.left(context.size() - framesOf(context).size());
  for (const Connection* window : m_windows.connections()) {
    if (tabId.isEmpty() ? pageOfAddress(window->address()) == page : window->tabId() == tabId) {
      return window->tabId();
    }
  }
  return QString();
}

QString RecordedWindows::outside(const QString& tabId, const QString& context) const {
  const QString frames = framesOf(context);
  const QString page = context.left(context.size() - frames.size());
  NameCount count;
  for (const Connection* window : m_windows.connections()) {
    if (window->tabId() == tabId) {
      break;
    }
    count.nextSuffix(pageOfAddress(window->address()));
  }
  return tabId.isEmpty() ? context : page + count.nextSuffix(page) + frames;
}

QString RecordedWindows::nameOf(const Connection& window) const {
  const QString page = pageOfAddress(window.address());
  NameCount count;
  for (const Connection* other : m_windows.connections()) {
    if (other->tabId().toInt() < window.tabId().toInt()) {
      count.nextSuffix(pageOfAddress(other->address()));
    }
  }
  return page + count.nextSuffix(page);
}

QString RecordedWindows::newest() const {
  const QVector<Connection*> windows = m_windows.connections();
  return windows.isEmpty() ? QString() : windows.constLast()->tabId();
}

}  // namespace Corvex::Webhook
