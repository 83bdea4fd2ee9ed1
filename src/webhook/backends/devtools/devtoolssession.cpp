#include "webhook/backends/devtools/devtoolssession.h"

#include <QUrl>

#include "webhook/browser/pageerrors.h"
#include "webhook/protocol/websockettransport.h"

namespace Corvex::Webhook {

namespace {

constexpr int closeTimeoutMs = 2000;

BrowserSession::Start failure(const QString& error) { return BrowserSession::Start::failure(error); }

}  // namespace

BrowserSession::Start DevToolsSession::start(const SessionOptions& options) {
  const QDeadlineTimer deadline(options.startTimeoutMs, Qt::PreciseTimer);
  Chromium::Instance browser;
  std::unique_ptr<Transport> transport;
  if (options.attachTo.isEmpty()) {
    browser = Chromium::launch(options);
    if (!browser.error.isEmpty()) {
      return failure(browser.error);
    }
    transport = std::move(browser.transport);
  } else {
    auto socket = std::make_unique<WebSocketTransport>();
    const QString error = socket->open(QUrl(options.attachTo), deadline);
    if (!error.isEmpty()) {
      return failure(
          QStringLiteral("The browser at '%1' cannot be reached: %2. Check that it runs and that the address is "
                         "the WebSocket address that it printed at its start.")
              .arg(options.attachTo, error));
    }
    transport = std::move(socket);
  }
  std::unique_ptr<DevToolsSession> session(new DevToolsSession(std::move(browser), std::move(transport)));
  session->setDefaultTimeout(options.defaultTimeoutMs);
  const QString error = session->open(deadline);
  if (!error.isEmpty()) {
    return failure(error);
  }
  return {std::move(session), {}};
}

DevToolsSession::DevToolsSession(Chromium::Instance browser, std::unique_ptr<Transport> transport)
    : m_browser(std::move(browser)), m_channel(std::move(transport), DevTools::dialect()) {
  m_channel.subscribe(QString(), this,
                      [this](const QString& method, const QJsonObject& parameters) { takeEvent(method, parameters); });
  connect(&m_channel, &Channel::closed, this, &DevToolsSession::lose);
  if (!m_browser.process) {
    return;
  }
  connect(m_browser.process.get(), &ChildProcess::ended, this, [this] { lose(QStringLiteral("its process ended")); });
}

DevToolsSession::~DevToolsSession() {
  m_ended = true;
  m_channel.close(QStringLiteral("it was closed"));
  endBrowser();
}

QString DevToolsSession::open(const QDeadlineTimer& deadline) {
  const std::shared_ptr<Request> version = m_channel.start({}, DevTools::version());
  const std::shared_ptr<Request> report = m_channel.start({}, DevTools::reportPages());
  if (!m_browser.process) {
    waitFor(*report, deadline);  // the pages that are there are reported before it
    m_pagesToCome = 1;
    m_channel.start({}, DevTools::createPage());
  }
  waitFor(*m_firstPageOpened, deadline);
  if (m_ended) {
    return QStringLiteral("The browser ended before it was ready. Its last words: %1").arg(m_lastWords);
  }
  if (m_pages.empty()) {
    return QStringLiteral("The browser started but opened no page in time. Try again, or allow more time.");
  }
  takeVersion(version->reply);
  return {};
}

void DevToolsSession::takeVersion(const Reply& reply) {
  const QString product = reply.result.value(QLatin1String("product")).toString();
  m_name = product.section(QLatin1Char('/'), 0, 0);
  m_version = product.section(QLatin1Char('/'), 1);
}

BrowserPage* DevToolsSession::firstPage() const { return m_pages.front().get(); }

QVector<BrowserPage*> DevToolsSession::pages() const {
  QVector<BrowserPage*> open;
  for (const auto& page : m_pages) {
    if (page->isOpen()) {
      open.append(page.get());
    }
  }
  return open;
}

FunctionCallResult<BrowserPage*> DevToolsSession::newPage() {
  PageCall call(&m_channel, {}, defaultTimeout());
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
  const QString target = reply.result.value(QLatin1String("targetId")).toString();
  for (const auto& page : m_pages) {
    if (page->targetId() == target) {
      return {page.get(), {}};
    }
  }
  return {nullptr, QStringLiteral("The browser opened a page but did not report it. Try again.")};
}

QString DevToolsSession::addStartScriptOfNewPages(const QString& text) {
  m_startScripts << text;
  return {};
}

void DevToolsSession::close() {
  if (m_ended) {
    return;
  }
  const QPointer<DevToolsSession> self(this);
  if (!m_browser.process) {
    PageCall call(&m_channel, {}, closeTimeoutMs);
    for (BrowserPage* page : pages()) {
      if (self) {
        call.ask(DevTools::closePage(static_cast<DevToolsPage*>(page)->targetId()));
      }
    }
    if (!self) {
      return;
    }
  }
  m_ended = true;
  const QString reason = QStringLiteral("it was closed");
  m_channel.close(reason);
  endBrowser();
  for (size_t i = 0; self && i < m_pages.size(); ++i) {
    m_pages[i]->noteClosed(PageErrors::browserLost(reason));
  }
}

Capabilities DevToolsSession::capabilities() const { return {true, true, true, true, true}; }

qint64 DevToolsSession::browserProcess() const { return m_browser.process ? m_browser.process->pid() : 0; }

QString DevToolsSession::browserDirectory() const {
  return m_browser.directory ? m_browser.directory->path() : QString();
}

void DevToolsSession::takeEvent(const QString& method, const QJsonObject& parameters) {
  if (method == QLatin1String("Target.attachedToTarget")) {
    onAttached(parameters);
  }
  if (method == QLatin1String("Target.detachedFromTarget")) {
    onDetached(parameters);
  }
}

void DevToolsSession::onAttached(const QJsonObject& parameters) {
  const DevTools::Target target = DevTools::readTarget(parameters);
  if (!isOurs(target)) {
    m_channel.start(target.session, DevTools::resumePage());
    m_channel.start({}, DevTools::leavePage(target.session));
    return;
  }
  if (target.opener.isEmpty() && m_pagesToCome > 0) {
    --m_pagesToCome;
  }
  m_pages.push_back(std::make_unique<DevToolsPage>(m_channel, *this, target, m_startScripts));
  m_firstPageOpened->complete();
  if (m_pages.size() > 1) {
    Q_EMIT pageOpened(m_pages.back().get());
  }
}

bool DevToolsSession::isOurs(const DevTools::Target& target) const {
  if (target.kind != QLatin1String("page")) {
    return false;
  }
  if (m_browser.process || (target.opener.isEmpty() && m_pagesToCome > 0)) {
    return true;
  }
  for (const auto& page : m_pages) {
    if (page->targetId() == target.opener) {
      return true;
    }
  }
  return false;
}

void DevToolsSession::onDetached(const QJsonObject& parameters) {
  const QString session = parameters.value(QLatin1String("sessionId")).toString();
  for (const auto& page : m_pages) {
    if (page->sessionId() == session) {
      return page->noteClosed(PageErrors::pageClosed());
    }
  }
}

void DevToolsSession::lose(const QString& reason) {
  if (m_ended) {
    return;
  }
  m_ended = true;
  if (m_browser.directory) {
    m_lastWords = BrowserProgram::lastWords(m_browser.directory->path());
  }
  endBrowser();
  m_channel.close(reason);
  m_firstPageOpened->complete();
  const QPointer<DevToolsSession> self(this);
  for (size_t i = 0; self && i < m_pages.size(); ++i) {
    m_pages[i]->noteClosed(PageErrors::browserLost(reason));
  }
  if (self) {
    Q_EMIT lost(reason);
  }
}

void DevToolsSession::endBrowser() {
  if (m_browser.process) {
    m_browser.process->end();
  }
  if (m_browser.directory) {
    m_browser.directory->remove();
  }
}

}  // namespace Corvex::Webhook
