#include "webhook/pages/windownames.h"

#include "webhook/pages/connection.h"

#include <QRegularExpression>

#include <algorithm>

namespace Corvex::Webhook {

namespace {

QString pageOf(Connection& window) {
  if (window.mayBeHeld()) {
    return pageOfAddress(window.address());
  }
  const WebWrapper::JavaScriptAnswer answer = window.evaluateJS(QStringLiteral("__corvex__contextOf(window, true)"), 0);
  return answer.succeeded() ? answer.text : pageOfAddress(window.address());
}

QString pagePart(const QString& context) { return context.left(context.size() - framesOf(context).size()); }

}  // namespace

QString pageOfAddress(const QString& address) {
  if (address.startsWith(QLatin1String("data:"))) {
    return QStringLiteral("top");
  }
  const int query = address.indexOf(QLatin1Char('?'));
  QString page = address.endsWith(QLatin1Char('/')) ? address + QLatin1String("index.html") : address;
  page = page.mid(page.lastIndexOf(QLatin1Char('/'), query) + 1);
  static const QRegularExpression end(QStringLiteral("[?#;].*$"));
  return page.remove(end);
}

QString framesOf(const QString& context) {
  static const QRegularExpression frames(QStringLiteral("(\\.FRAME\\d+)+$"));
  return frames.match(context).captured(0);
}

QString NameCount::nextSuffix(const QString& page) {
  const int count = ++m_windows[page];
  return count > 1 ? QStringLiteral("<%1>").arg(count) : QString();
}

WindowNames::WindowNames(const QVector<Connection*>& windows) {
  if (windows.size() == 1) {
    return;
  }
  NameCount count;
  for (Connection* window : windows) {
    const QString page = pageOf(*window);
    m_windows.append({window, page, count.nextSuffix(page)});
  }
}

const WindowNames::Window* WindowNames::find(const QString& context) const {
  const QString page = pagePart(context);
  const auto found = std::find_if(m_windows.begin(), m_windows.end(),
                                  [&page](const Window& window) { return window.page + window.suffix == page; });
  return found == m_windows.end() ? nullptr : &*found;
}

Connection* WindowNames::windowOf(const QString& context) const {
  const Window* const window = find(context);
  return window ? window->connection : nullptr;
}

std::optional<QString> WindowNames::inside(const Connection* window, const QString& context) const {
  const Window* const owner = find(context);
  if (!owner) {
    return context;
  }
  return owner->connection == window ? std::optional<QString>(owner->page + framesOf(context)) : std::nullopt;
}

QString WindowNames::outside(const Connection* window, const QString& localName) const {
  for (const Window& each : m_windows) {
    if (each.connection == window) {
      return pagePart(localName) + each.suffix + framesOf(localName);
    }
  }
  return localName;
}

}  // namespace Corvex::Webhook
