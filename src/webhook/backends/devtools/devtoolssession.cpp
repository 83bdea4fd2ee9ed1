#include "webhook/backends/devtools/devtoolssession.h"

#include <QPointer>
#include <QUrl>

#include "webhook/backends/devtools/chromium.h"
#include "webhook/browser/pageerrors.h"
#include "webhook/protocol/devtools/devtoolsdownloads.h"
#include "webhook/protocol/transport/websockettransport.h"

namespace Corvex::Webhook {

namespace {

constexpr int closeTimeoutMs = 2000;

}  // namespace

BrowserSession::Start DevToolsSession::startChromium(const SessionOptions& options) {
  const QDeadlineTimer deadline(options.startTimeoutMs, Qt::PreciseTimer);
  Chromium::Instance chromium = Chromium::launch(options);
  return chromium.error.isEmpty() ? open(options, std::move(chromium.browser), std::move(chromium.transport), deadline)
                                  : Start::failure(chromium.error);
}

BrowserSession::Start DevToolsSession::attach(const SessionOptions& options) {
  const QDeadlineTimer deadline(options.startTimeoutMs, Qt::PreciseTimer);
  auto socket = std::make_unique<WebSocketTransport>();
  const QString error = socket->open(QUrl(options.attachTo), deadline);
  if (!error.isEmpty()) {
    return Start::failure(
        QStringLiteral("The browser at '%1' cannot be reached: %2. Check that it runs and that the address is "
                       "the WebSocket address that it printed at its start.")
            .arg(options.attachTo, error));
  }
  return open(options, nullptr, std::move(socket), deadline);
}

BrowserSession::Start DevToolsSession::open(const SessionOptions& options, std::unique_ptr<OwnedBrowser> browser,
                                            std::unique_ptr<Transport> transport, const QDeadlineTimer& deadline) {
  std::unique_ptr<DevToolsSession> session(new DevToolsSession(std::move(browser), std::move(transport)));
  session->setDefaultTimeout(options.defaultTimeoutMs);
  session->m_ignoresCertificateErrors = options.ignoreCertificateErrors;
  if (!session->isVisited() && !options.downloadFolder.isEmpty()) {
    session->keepDownloads(options.downloadFolder);
    session->channel().start({}, DevTools::keepDownloads(options.downloadFolder));
  }
  const QString error = session->open(deadline);
  if (!error.isEmpty()) {
    return Start::failure(error);
  }
  return {std::move(session), {}};
}

DevToolsSession::DevToolsSession(std::unique_ptr<OwnedBrowser> browser, std::unique_ptr<Transport> transport)
    : ProtocolSession(std::move(browser), std::move(transport), DevTools::dialect()) {}

QString DevToolsSession::open(const QDeadlineTimer& deadline) {
  const std::shared_ptr<Request> version = channel().start({}, DevTools::version());
  const std::shared_ptr<Request> report = channel().start({}, DevTools::reportPages());
  if (isVisited()) {
    waitFor(*report, deadline);  // the pages that are there are reported before it
    m_pagesToCome = 1;
    channel().start({}, DevTools::createPage());
  }
  const QString error = awaitFirstPage(deadline);
  const QString product = version->reply.result.value(QLatin1String("product")).toString();
  setBrowser(product.section(QLatin1Char('/'), 0, 0), product.section(QLatin1Char('/'), 1));
  return error;
}

FunctionCallResult<BrowserPage*> DevToolsSession::newPage() {
  PageCall call(&channel(), {}, defaultTimeout());
  const QPointer<DevToolsSession> self(this);
  ++m_pagesToCome;
  const Reply reply = call.ask(DevTools::createPage());
  if (!self) {
    return {nullptr, call.errorOf(reply)};
  }
  if (!reply.isAnswered()) {
    --m_pagesToCome;
    return {nullptr, call.errorOf(reply)};
  }
  DevToolsPage* const page = m_pageOfTarget.value(reply.result.value(QLatin1String("targetId")).toString());
  return {page, page ? QString() : PageErrors::pageNotReported()};
}

QString DevToolsSession::addStartScriptOfNewPages(const QString& text) {
  m_startScripts << text;
  return {};
}

void DevToolsSession::setCredentials(const QVector<Credentials>& credentials) {
  authentication().setCredentials(credentials);
  for (BrowserPage* page : pages()) {
    static_cast<DevToolsPage*>(page)->holdRequests();
  }
}

void DevToolsSession::prepareClosing() {
  if (!isVisited()) {
    return;
  }
  const QPointer<DevToolsSession> self(this);
  PageCall call(&channel(), {}, closeTimeoutMs);
  for (BrowserPage* page : pages()) {
    if (self) {
      call.ask(DevTools::closePage(static_cast<DevToolsPage*>(page)->targetId()));
    }
  }
}

void DevToolsSession::takeEvent(const QString& method, const QJsonObject& parameters) {
  if (method == QLatin1String("Target.attachedToTarget")) {
    onAttached(parameters);
  }
  if (method == QLatin1String("Target.detachedFromTarget")) {
    onDetached(parameters);
  }
  takeDownload(DevTools::readDownload(method, parameters));
}

void DevToolsSession::onAttached(const QJsonObject& parameters) {
  const DevTools::Target target = DevTools::readTarget(parameters);
  if (!isOurs(target)) {
    channel().start(target.session, DevTools::resumePage());
    channel().start({}, DevTools::leavePage(target.session));
    return;
  }
  if (target.opener.isEmpty() && m_pagesToCome > 0) {
    --m_pagesToCome;
  }
  if (m_ignoresCertificateErrors) {
    channel().start(target.session, DevTools::ignoreCertificateErrors());
  }
  auto page = std::make_unique<DevToolsPage>(channel(), *this, authentication(), target, m_startScripts);
  m_pageOfTarget[target.id] = page.get();
  m_pageOfSession[target.session] = page.get();
  addPage(std::move(page));
}

bool DevToolsSession::isOurs(const DevTools::Target& target) const {
  const bool wasAskedFor = target.opener.isEmpty() && m_pagesToCome > 0;
  return target.kind == QLatin1String("page") &&
         (!isVisited() || wasAskedFor || m_pageOfTarget.contains(target.opener));
}

void DevToolsSession::onDetached(const QJsonObject& parameters) {
  if (DevToolsPage* const page = m_pageOfSession.value(parameters.value(QLatin1String("sessionId")).toString())) {
    page->noteClosed(PageErrors::pageClosed());
  }
}

}  // namespace Corvex::Webhook
