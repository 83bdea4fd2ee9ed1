#include "webhook/backends/bidi/bidisession.h"

#include <QPointer>

#include "webhook/browser/pageerrors.h"
#include "webhook/protocol/startscript.h"
#include "webhook/protocol/websockettransport.h"

namespace Corvex::Webhook {

namespace {

constexpr int endTimeoutMs = 2000;

BrowserSession::Start failure(const QString& error) { return BrowserSession::Start::failure(error); }

/// The browser's name as WebDriver servers know it.
QString serversName(const QString& browser) {
  if (browser == QLatin1String("chromium")) {
    return QStringLiteral("chrome");
  }
  return browser;
}

}  // namespace

BrowserSession::Start BidiSession::startFirefox(const SessionOptions& options) {
  const QDeadlineTimer deadline(options.startTimeoutMs, Qt::PreciseTimer);
  Firefox::Instance browser = Firefox::launch(options, deadline);
  if (!browser.error.isEmpty()) {
    return failure(browser.error);
  }
  const QUrl url(browser.address + QStringLiteral("/session"));
  return connectTo(options, url, std::move(browser), nullptr, deadline);
}

BrowserSession::Start BidiSession::startRemote(const SessionOptions& options) {
  const QDeadlineTimer deadline(options.startTimeoutMs, Qt::PreciseTimer);
  const WantedCapabilities wanted = wantedCapabilities(options.capabilities, serversName(options.browser));
  if (!wanted.error.isEmpty()) {
    return failure(wanted.error);
  }
  WebDriverSession::Start remote = WebDriverSession::create(options.remoteUrl, wanted.capabilities, deadline);
  if (!remote.session) {
    return failure(remote.error);
  }
  const QUrl url = remote.session->webSocketUrl();
  return connectTo(options, url, {}, std::move(remote.session), deadline);
}

BrowserSession::Start BidiSession::connectTo(const SessionOptions& options, const QUrl& url, Firefox::Instance browser,
                                             std::unique_ptr<WebDriverSession> remote, const QDeadlineTimer& deadline) {
  auto socket = std::make_unique<WebSocketTransport>();
  const QString error = socket->open(url, deadline);
  if (!error.isEmpty()) {
    if (remote) {
      remote->end(QDeadlineTimer(endTimeoutMs));
    }
    return failure(QStringLiteral("The browser at '%1' cannot be reached: %2. Check that this machine may connect to "
                                  "that address.")
                       .arg(url.toString(), error));
  }
  std::unique_ptr<BidiSession> session(new BidiSession(std::move(browser), std::move(remote), std::move(socket)));
  session->setDefaultTimeout(options.defaultTimeoutMs);
  const QString trouble = session->open(deadline);
  if (!trouble.isEmpty()) {
    return failure(trouble);
  }
  return {std::move(session), {}};
}

BidiSession::BidiSession(Firefox::Instance browser, std::unique_ptr<WebDriverSession> remote,
                         std::unique_ptr<Transport> transport)
    : m_browser(std::move(browser)), m_remote(std::move(remote)), m_channel(std::move(transport), Bidi::dialect()) {
  m_channel.subscribe(QString(), this,
                      [this](const QString& method, const QJsonObject& parameters) { takeEvent(method, parameters); });
  connect(&m_channel, &Channel::closed, this, &BidiSession::lose);
  if (m_browser.process) {
    connect(m_browser.process.get(), &ChildProcess::ended, this, [this] { lose(QStringLiteral("its process ended")); });
  }
}

BidiSession::~BidiSession() {
  m_ended = true;
  m_channel.close(QStringLiteral("it was closed"));
  endBrowser();
}

QString BidiSession::open(const QDeadlineTimer& deadline) {
  const QString refusal = askForSession(deadline);
  if (!refusal.isEmpty()) {
    return refusal;
  }
  const Reply watched = m_channel.call({}, Bidi::watchPages(), deadline);
  if (watched.status == Reply::Refused) {
    return QStringLiteral("The browser cannot be driven: %1. Use a newer one.").arg(watched.error);
  }
  m_channel.start({}, Bidi::watchCrashes());
  const Reply listed = m_channel.call({}, Bidi::listPages(), deadline);
  for (const Bidi::Context& context : Bidi::readPages(listed.result)) {
    addPage(context);
  }
  if (m_ended) {
    return QStringLiteral("The browser ended before it was ready.");
  }
  if (m_pages.empty()) {
    return QStringLiteral("The browser started but opened no page in time. Try again, or allow more time.");
  }
  return {};
}

QString BidiSession::askForSession(const QDeadlineTimer& deadline) {
  if (m_remote) {
    m_info = Bidi::readBrowser(m_remote->capabilities());
    return {};
  }
  const Reply reply = m_channel.call({}, Bidi::newSession(), deadline);
  m_info = Bidi::readBrowser(reply.result.value(QLatin1String("capabilities")).toObject());
  return reply.status == Reply::Refused
             ? QStringLiteral("The browser gave no session: %1. Use a newer one.").arg(reply.error)
             : QString();
}

BrowserPage* BidiSession::firstPage() const { return m_pages.front().get(); }

QVector<BrowserPage*> BidiSession::pages() const {
  QVector<BrowserPage*> open;
  for (const auto& page : m_pages) {
    if (page->isOpen()) {
      open.append(page.get());
    }
  }
  return open;
}

FunctionCallResult<BrowserPage*> BidiSession::newPage() {
  PageCall call(&m_channel, {}, defaultTimeout());
  const QPointer<BidiSession> self(this);
  const Reply reply = call.ask(Bidi::createPage());
  if (!self || !reply.isAnswered()) {
    return {nullptr, call.errorOf(reply)};
  }
  BidiPage* const page = pageOf(Bidi::readContext(reply.result).id);
  return {page, page ? QString() : QStringLiteral("The browser opened a page but did not report it. Try again.")};
}

QString BidiSession::addStartScriptOfNewPages(const QString& text) {
  PageCall call(&m_channel, {}, defaultTimeout());
  if (!m_framesGuarded) {
    m_framesGuarded = true;
    m_channel.start({}, Bidi::addStartScript({}, StartScript::frameGuard()));
  }
  return call.errorOf(call.ask(Bidi::addStartScript({}, StartScript::forTopPage(text))));
}

void BidiSession::keepBrowserOpenWithout(const BidiPage& page, PageCall& call) {
  const QVector<BrowserPage*> open = pages();
  if (m_ended || open.size() != 1 || open.first() != &page) {
    return;
  }
  ++m_hiddenPagesToCome;
  call.askBrowser(Bidi::createPage());
}

void BidiSession::close() {
  if (m_ended) {
    return;
  }
  m_ended = true;
  const QString reason = QStringLiteral("it was closed");
  const QPointer<BidiSession> self(this);
  m_channel.close(reason);
  endBrowser();
  for (size_t i = 0; self && i < m_pages.size(); ++i) {
    m_pages[i]->noteClosed(PageErrors::browserLost(reason));
  }
}

Capabilities BidiSession::capabilities() const { return {true, true, true, true, true}; }

qint64 BidiSession::browserProcess() const { return m_browser.process ? m_browser.process->pid() : 0; }

QString BidiSession::browserDirectory() const { return m_browser.directory ? m_browser.directory->path() : QString(); }

void BidiSession::takeEvent(const QString& method, const QJsonObject& parameters) {
  if (method == QLatin1String("browsingContext.contextCreated")) {
    onContextCreated(Bidi::readContext(parameters));
  }
  if (method == QLatin1String("browsingContext.contextDestroyed")) {
    onContextDestroyed(Bidi::readContext(parameters));
  }
  if (method == QLatin1String("script.realmDestroyed")) {
    for (const auto& page : m_pages) {
      page->noteRealmGone(Bidi::readGoneRealm(parameters));
    }
  }
  if (const std::optional<QString> devTools = Bidi::readCrash(method, parameters)) {
    onCrashed(*devTools);
  }
}

void BidiSession::onCrashed(const QString& devToolsSession) {
  for (const auto& page : m_pages) {
    if (page->hasDevToolsSession(devToolsSession)) {
      return page->noteCrashed();
    }
  }
}

void BidiSession::onContextCreated(const Bidi::Context& context) {
  if (context.parent.isEmpty()) {
    addPage(context);
    return;
  }
  const QString page = m_pageOfFrame.value(context.parent, context.parent);
  m_pageOfFrame.insert(context.id, page);
  if (BidiPage* const owner = pageOf(page)) {
    owner->watchFrame(context.id);
  }
}

void BidiSession::onContextDestroyed(const Bidi::Context& context) {
  m_pageOfFrame.remove(context.id);
  if (BidiPage* const page = pageOf(context.id)) {
    page->noteClosed(PageErrors::pageClosed());
  }
}

BidiPage* BidiSession::addPage(const Bidi::Context& context) {
  if (BidiPage* const known = pageOf(context.id)) {
    return known;
  }
  if (m_hiddenPagesToCome > 0 && context.opener.isEmpty()) {
    --m_hiddenPagesToCome;
    return nullptr;
  }
  m_pages.push_back(std::make_unique<BidiPage>(m_channel, *this, context));
  BidiPage* const page = m_pages.back().get();
  if (m_pages.size() > 1) {
    Q_EMIT pageOpened(page);
  }
  return page;
}

BidiPage* BidiSession::pageOf(const QString& context) const {
  for (const auto& page : m_pages) {
    if (page->contextId() == context) {
      return page.get();
    }
  }
  return nullptr;
}

void BidiSession::lose(const QString& reason) {
  if (m_ended) {
    return;
  }
  m_ended = true;
  const QPointer<BidiSession> self(this);
  m_channel.close(reason);
  endBrowser();
  for (size_t i = 0; self && i < m_pages.size(); ++i) {
    m_pages[i]->noteClosed(PageErrors::browserLost(reason));
  }
  if (self) {
    Q_EMIT lost(reason);
  }
}

void BidiSession::endBrowser() {
  if (m_browser.process) {
    m_browser.process->end();
  }
  if (m_browser.directory) {
    m_browser.directory->remove();
  }
  // This object may be gone when the server has answered.
  const std::unique_ptr<WebDriverSession> remote = std::move(m_remote);
  if (remote) {
    remote->end(QDeadlineTimer(endTimeoutMs));
  }
}

}  // namespace Corvex::Webhook
