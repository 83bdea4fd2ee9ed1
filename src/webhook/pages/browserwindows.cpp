#include "webhook/pages/browserwindows.h"

#include "shared/wait.h"
#include "webhook/pages/dialogsentence.h"
#include "webhook/pages/windownames.h"
#include "wrappers/web/setup/wrapperconfig.h"

namespace Corvex::Webhook {

namespace {

// Long enough for a page that is only slow, and for one that has been waited for already.
const int signOfLifeMs = 2000;
const int nextSignMs = 100;

BrowserIdentity identify(const BrowserSession& session) {
  BrowserIdentity identity;
  const QString name = session.browserName().toLower();
  identity.family = name.contains(QLatin1String("firefox"))  ? BrowserIdentity::Firefox
                    : name.contains(QLatin1String("google")) ? BrowserIdentity::Chrome
                                                             : BrowserIdentity::Chromium;
  identity.majorVersion = session.browserVersion().section(QLatin1Char('.'), 0, 0).toInt();
  return identity;
}

}  // namespace

BrowserWindows::BrowserWindows(BrowserSession& session, const WebWrapper::WrapperConfig& config, WebModel& model,
                               const QString& messagePort)
    : m_session(session), m_config(config), m_model(model), m_identity(identify(session)) {
  m_identity.messagePort = messagePort;
}

BrowserWindows::~BrowserWindows() {
  for (const auto& connection : m_connections) {
    m_model.removeConnection(connection.get());
  }
}

QString BrowserWindows::open() {
  addPage(m_session.firstPage());
  const QString error = m_connections.front()->install();
  if (!error.isEmpty() || !m_config.improvedTabAndWindowSupport()) {
    return error;
  }
  connect(&m_session, &BrowserSession::pageOpened, this, &BrowserWindows::addPage);
  return m_session.addStartScriptOfNewPages(hookText(m_config, m_identity));
}

void BrowserWindows::addPage(BrowserPage* page) {
  const QString tabId = QString::number(m_connections.size() + 1);
  m_connections.push_back(std::make_unique<Connection>(page, &m_config, m_identity, tabId));
  Connection* connection = m_connections.back().get();
  m_model.addConnection(connection);
  connect(connection, &Connection::documentGone, this, [this, connection] { m_model.invalidateObjects(connection); });
  connect(connection, &Connection::navigating, this, &BrowserWindows::documentExpected);
  connect(page, &BrowserPage::navigated, this, &BrowserWindows::documentExpected);
  connect(page, &BrowserPage::closed, connection, [this, connection] { noteClosed(connection); });
  connection->setObstacle([this, connection] { return whyNotAsk(connection); });
  connection->setDoubt([this, connection] { return mayBeHeld(connection); });
  connect(page, &BrowserPage::dialogOpened, this, [this, connection] {
    if (const std::optional<Dialog> dialog = connection->openDialog()) {
      Q_EMIT dialogOpened(*dialog);
    }
  });
  Q_EMIT documentExpected(page->url());
}

void BrowserWindows::noteClosed(Connection* connection) {
  const bool wasCurrent = current() == connection;
  m_model.removeConnection(connection);
  const QVector<Connection*> left = connections();
  if (wasCurrent && !left.isEmpty()) {
    setCurrent(left.last());
  }
  Q_EMIT windowClosed(connection);
}

Connection* BrowserWindows::current() const { return m_model.current(); }

void BrowserWindows::setCurrent(Connection* connection) { m_model.setCurrent(connection); }

QVector<Connection*> BrowserWindows::connections() const {
  QVector<Connection*> open;
  for (const auto& connection : m_connections) {
    if (connection->isOpen()) {
      open << connection.get();
    }
  }
  return open;
}

QString BrowserWindows::dialogOf(Connection* connection, const QString& who) const {
  const std::optional<Dialog> dialog = connection ? connection->openDialog() : std::nullopt;
  return dialog ? dialogSentence(who, dialog->kind, dialog->text) : QString();
}

QString BrowserWindows::nameByAddress(const Connection* connection) const {
  NameCount count;
  for (const Connection* each : connections()) {
    const QString page = pageOfAddress(each->address());
    const QString name = page + count.nextSuffix(page);
    if (each == connection) {
      return name;
    }
  }
  return QString();
}

QString BrowserWindows::dialogOfAnother(const Connection* connection) const {
  for (Connection* other : connections()) {
    if (other != connection && other->openDialog()) {
      return dialogOf(other, QStringLiteral("window '%1'").arg(nameByAddress(other)));
    }
  }
  return QString();
}

QString BrowserWindows::whatIsShown() const {
  const QString own = dialogOf(current(), QStringLiteral("page"));
  return own.isEmpty() ? dialogOfAnother(current()) : own;
}

bool BrowserWindows::mayBeHeld(const Connection* connection) const {
  const bool holdsOthers = m_identity.family != BrowserIdentity::Firefox;
  return connection->openDialog() || (holdsOthers && !dialogOfAnother(connection).isEmpty());
}

QString BrowserWindows::whyNotAsk(Connection* connection) const {
  const QString own = dialogOf(connection, QStringLiteral("page"));
  if (!own.isEmpty() || !connection->isAvailable() || dialogOfAnother(connection).isEmpty()) {
    return own;
  }
  const int timeoutMs = m_silent.contains(connection) ? nextSignMs : signOfLifeMs;
  const QDeadlineTimer deadline(timeoutMs);
  const JavaScriptAnswer sign = connection->page()->evaluate(QStringLiteral("0"), timeoutMs);
  if (!sign.aborted || !deadline.hasExpired()) {
    m_silent.remove(connection);
    return QString();
  }
  m_silent.insert(connection);
  return dialogOfAnother(connection);
}

}  // namespace Corvex::Webhook
