#include "webhook/walks/walkedpages.h"

namespace Walks {

namespace {

struct PageRow {
  const char* name;
  const char* path;
};

// None shows random things or the time.
const PageRow pages[] = {
    {"shop", "/shop/index.html"},
    {"rooms", "/walks/rooms.html"},
    {"backbone", "/packages/todomvc/examples/backbone/index.html"},
    {"react-todo", "/packages/todomvc/examples/react/index.html"},
    {"jqueryui", "/walks/jqueryui.html"},
    {"bootstrap", "/walks/bootstrap.html"},
    {"react", "/e2e/foreign/react.html"},
    {"vue", "/e2e/foreign/vue.html"},
};

}  // namespace

WalkedPages::WalkedPages() {
  const QString tests = QStringLiteral(CORVEX_TEST_SOURCE);
  m_server.serveFolder(tests + QStringLiteral("/../examples/shop"), QStringLiteral("/shop/"));
  m_server.serveFolder(tests + QStringLiteral("/webhook/walks/pages"), QStringLiteral("/walks/"));
  m_server.serveFolder(tests + QStringLiteral("/../node_modules"), QStringLiteral("/packages/"));
  m_server.serveFolder(tests + QStringLiteral("/e2e/pages"), QStringLiteral("/e2e/"));
  m_server.add(QStringLiteral("/empty.html"), {"<title>empty</title>"});
}

QStringList WalkedPages::names() {
  QStringList result;
  for (const PageRow& page : pages) {
    result << QString::fromLatin1(page.name);
  }
  return result;
}

QString WalkedPages::address(const QString& name) const {
  for (const PageRow& page : pages) {
    if (name == QLatin1String(page.name)) {
      return m_server.url(QString::fromLatin1(page.path));
    }
  }
  return emptyPage();
}

QString WalkedPages::emptyPage() const { return m_server.url(QStringLiteral("/empty.html")); }

}  // namespace Walks
