#include "webhook/backends/bidi/bidisession.h"

#include <QPointer>

#include "webhook/backends/bidi/firefox.h"
#include "webhook/backends/bidi/webdriver.h"
#include "webhook/browser/pageerrors.h"
#include "webhook/protocol/bidi/bidiauth.h"
#include "webhook/protocol/bidi/bidiconsole.h"
#include "webhook/protocol/bidi/bididownloads.h"
#include "webhook/protocol/startscript.h"
#include "webhook/protocol/transport/websockettransport.h"

namespace Corvex::Webhook {

namespace {

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
  Firefox::Instance firefox = Firefox::launch(options, deadline);
  if (!firefox.error.isEmpty()) {
    return Start::failure(firefox.error);
  }
  const QUrl url(firefox.address + QStringLiteral("/session"));
  return connectTo(options, url, std::move(firefox.browser), nullptr, deadline);
}

BrowserSession::Start BidiSession::startRemote(const SessionOptions& options) {
  const QDeadlineTimer deadline(options.startTimeoutMs, Qt::PreciseTimer);
  const WantedCapabilities wanted = wantedCapabilities(options, serversName(options.browser));
  if (!wanted.error.isEmpty()) {
    return Start::failure(wanted.error);
  }
  WebDriverSession::Start remote = WebDriverSession::create(options.remoteUrl, wanted.capabilities, deadline);
  if (!remote.session) {
    return Start::failure(remote.error);
  }
  const QUrl url = remote.session->webSocketUrl();
  const QJsonObject capabilities = remote.session->capabilities();
  return connectTo(options, url, std::move(remote.session), &capabilities, deadline);
}

BrowserSession::Start BidiSession::connectTo(const SessionOptions& options, const QUrl& url,
                                             std::unique_ptr<OwnedBrowser> browser, const QJsonObject* capabilities,
                                             const QDeadlineTimer& deadline) {
  auto socket = std::make_unique<WebSocketTransport>();
  const QString error = socket->open(url, deadline);
  if (!error.isEmpty()) {
    browser->end();
    return Start::failure(QStringLiteral("The browser at '%1' cannot be reached: %2. Check that this machine may "
                                         "connect to that address.")
                              .arg(url.toString(), error));
  }
  std::unique_ptr<BidiSession> session(new BidiSession(std::move(browser), std::move(socket)));
  session->setDefaultTimeout(options.defaultTimeoutMs);
  session->m_ignoresCertificateErrors = options.ignoreCertificateErrors;
  // A server's browser has its files on its own machine.
  session->m_downloadFolder = capabilities ? QString() : options.downloadFolder;
  const QString trouble = session->open(capabilities, deadline);
  if (!trouble.isEmpty()) {
    return Start::failure(trouble);
  }
  return {std::move(session), {}};
}

BidiSession::BidiSession(std::unique_ptr<OwnedBrowser> browser, std::unique_ptr<Transport> transport)
    : ProtocolSession(std::move(browser), std::move(transport), Bidi::dialect()) {}

QString BidiSession::open(const QJsonObject* capabilities, const QDeadlineTimer& deadline) {
  const QString refusal = capabilities ? QString() : askForSession(deadline);
  if (!refusal.isEmpty()) {
    return refusal;
  }
  if (capabilities) {
    takeCapabilities(*capabilities);
  }
  const Reply watched = channel().call({}, Bidi::watchPages(), deadline);
  if (watched.status == Reply::Refused) {
    return QStringLiteral("The browser cannot be driven: %1. Use a newer one.").arg(watched.error);
  }
  channel().start({}, Bidi::watchCrashes());
  channel().start({}, Bidi::watchConsole());
  for (const Command& command : Bidi::holdQuestions()) {
    channel().start({}, command);
  }
  if (!m_downloadFolder.isEmpty()) {
    keepDownloads(m_downloadFolder);
    channel().start({}, Bidi::watchDownloads());
    m_downloadsKept = channel().start({}, Bidi::keepDownloads(m_downloadFolder));
  }
  const Reply listed = channel().call({}, Bidi::listPages(), deadline);
  for (const Bidi::Context& context : Bidi::readPages(listed.result)) {
    takePage(context);
  }
  return awaitFirstPage(listed.isAnswered() ? QDeadlineTimer(0) : deadline);
}

Downloads* BidiSession::downloads() {
  const bool isRefused = m_downloadsKept && m_downloadsKept->reply.status == Reply::Refused;
  return isRefused ? nullptr : ProtocolSession::downloads();
}

QString BidiSession::askForSession(const QDeadlineTimer& deadline) {
  const Reply reply = channel().call({}, Bidi::newSession(m_ignoresCertificateErrors), deadline);
  takeCapabilities(reply.result.value(QLatin1String("capabilities")).toObject());
  return reply.status == Reply::Refused
             ? QStringLiteral("The browser gave no session: %1. Use a newer one.").arg(reply.error)
             : QString();
}

void BidiSession::takeCapabilities(const QJsonObject& capabilities) {
  const Bidi::BrowserInfo info = Bidi::readBrowser(capabilities);
  setBrowser(info.name, info.version);
}

FunctionCallResult<BrowserPage*> BidiSession::newPage() {
  PageCall call(&channel(), {}, defaultTimeout());
  const QPointer<BidiSession> self(this);
  const Reply reply = call.ask(Bidi::createPage());
  if (!self || !reply.isAnswered()) {
    return {nullptr, call.errorOf(reply)};
  }
  BidiPage* const page = m_pageOfContext.value(Bidi::readContext(reply.result).id);
  return {page, page ? QString() : PageErrors::pageNotReported()};
}

QString BidiSession::addStartScriptOfNewPages(const QString& text) {
  PageCall call(&channel(), {}, defaultTimeout());
  if (!m_framesGuarded) {
    m_framesGuarded = true;
    channel().start({}, Bidi::addStartScript({}, StartScript::frameGuard()));
  }
  return call.errorOf(call.ask(Bidi::addStartScript({}, StartScript::forTopPage(text))));
}

void BidiSession::keepBrowserOpenWithout(const BidiPage& page, PageCall& call) {
  const QVector<BrowserPage*> open = pages();
  if (isLost() || open.size() != 1 || open.first() != &page) {
    return;
  }
  ++m_hiddenPagesToCome;
  call.askBrowser(Bidi::createPage());
}

void BidiSession::bringToFront(const QString& context) {
  if (context != m_contextInFront) {
    m_contextInFront = context;
    channel().start({}, Bidi::activatePage(context));
  }
}

void BidiSession::takeEvent(const QString& method, const QJsonObject& parameters) {
  if (method == QLatin1String("browsingContext.contextCreated")) {
    onContextCreated(Bidi::readContext(parameters));
  }
  if (method == QLatin1String("browsingContext.contextDestroyed")) {
    onContextDestroyed(Bidi::readContext(parameters));
  }
  if (method == QLatin1String("script.realmDestroyed")) {
    for (BidiPage* page : m_pageOfContext) {
      page->noteRealmGone(Bidi::readGoneRealm(parameters));
    }
  }
  if (const std::optional<AuthQuestion> question = Bidi::readQuestion(method, parameters)) {
    channel().start({}, Bidi::answerQuestion(*question, authentication().answer(*question)));
  }
  if (const std::optional<DownloadNews> news = Bidi::readDownload(method, parameters)) {
    onDownload(*news, parameters);
  }
  if (const std::optional<QString> devTools = Bidi::readCrash(method, parameters)) {
    onCrashed(*devTools);
  }
}

void BidiSession::onDownload(const DownloadNews& news, const QJsonObject& parameters) {
  takeDownload(news);
  BidiPage* const page = m_pageOfContext.value(parameters.value(QLatin1String("context")).toString());
  if (page && news.kind == DownloadNews::Begun) {
    page->noteDownload(Bidi::readDocument(parameters).navigation);
  }
}

void BidiSession::onCrashed(const QString& devToolsSession) {
  for (BidiPage* page : m_pageOfContext) {
    if (page->hasDevToolsSession(devToolsSession)) {
      return page->noteCrashed();
    }
  }
}

void BidiSession::onContextCreated(const Bidi::Context& context) {
  if (context.parent.isEmpty()) {
    takePage(context);
    return;
  }
  const QString page = m_pageOfFrame.value(context.parent, context.parent);
  m_pageOfFrame.insert(context.id, page);
  if (BidiPage* const owner = m_pageOfContext.value(page)) {
    owner->watchFrame(context.id);
  }
}

void BidiSession::onContextDestroyed(const Bidi::Context& context) {
  m_pageOfFrame.remove(context.id);
  if (BidiPage* const page = m_pageOfContext.value(context.id)) {
    page->noteClosed(PageErrors::pageClosed());
  }
}

void BidiSession::takePage(const Bidi::Context& context) {
  if (m_pageOfContext.contains(context.id)) {
    return;
  }
  if (m_hiddenPagesToCome > 0 && context.opener.isEmpty()) {
    --m_hiddenPagesToCome;
    return;
  }
  bringToFront(context.id);
  auto page = std::make_unique<BidiPage>(channel(), *this, context);
  m_pageOfContext[context.id] = page.get();
  addPage(std::move(page));
}

}  // namespace Corvex::Webhook
