#include "webhook/browser/protocolsession.h"

#include <QPointer>

#include "webhook/browser/pageerrors.h"

namespace Corvex::Webhook {

namespace {

QString wasClosed() { return QStringLiteral("it was closed"); }

}  // namespace

ProtocolSession::ProtocolSession(std::unique_ptr<OwnedBrowser> browser, std::unique_ptr<Transport> transport,
                                 const Dialect& dialect)
    : m_browser(std::move(browser)), m_channel(std::move(transport), dialect) {
  m_channel.subscribe(QString(), this,
                      [this](const QString& method, const QJsonObject& parameters) { takeEvent(method, parameters); });
  connect(&m_channel, &Channel::closed, this, &ProtocolSession::lose);
  if (m_browser) {
    connect(m_browser.get(), &OwnedBrowser::lost, this, &ProtocolSession::lose);
  }
}

void ProtocolSession::finish() {
  m_ended = true;
  m_channel.close(wasClosed());
  if (m_browser) {
    m_browser->end();
  }
}

QVector<BrowserPage*> ProtocolSession::pages() const {
  QVector<BrowserPage*> open;
  for (const auto& page : m_pages) {
    if (page->isOpen()) {
      open.append(page.get());
    }
  }
  return open;
}

void ProtocolSession::addPage(std::unique_ptr<ProtocolPage> page) {
  m_pages.push_back(std::move(page));
  m_firstPageThere->complete();
  if (m_pages.size() > 1) {
    Q_EMIT pageOpened(m_pages.back().get());
  }
}

void ProtocolSession::takeDownload(const std::optional<DownloadNews>& news) {
  if (m_downloads && news) {
    m_downloads->take(*news);
  }
}

void ProtocolSession::setBrowser(const QString& name, const QString& version) {
  m_name = name;
  m_version = version;
}

QString ProtocolSession::awaitFirstPage(const QDeadlineTimer& deadline) {
  waitFor(*m_firstPageThere, deadline);
  if (m_ended) {
    return PageErrors::endedEarly(m_channel.closeReason(), m_browser ? m_browser->explanation() : QString());
  }
  return m_pages.empty()
             ? QStringLiteral("The browser started but opened no page in time. Try again, or allow more time.")
             : QString();
}

void ProtocolSession::close() {
  if (m_ended) {
    return;
  }
  const QPointer<ProtocolSession> self(this);
  prepareClosing();
  if (self && !m_ended) {
    end(wasClosed());
  }
}

void ProtocolSession::lose(const QString& reason) {
  if (m_ended) {
    return;
  }
  const QPointer<ProtocolSession> self(this);
  end(reason);
  if (self) {
    Q_EMIT lost(reason);
  }
}

void ProtocolSession::end(const QString& reason) {
  m_ended = true;
  const QPointer<ProtocolSession> self(this);
  const std::shared_ptr<OwnedBrowser> browser = m_browser;
  m_channel.close(reason);
  if (browser) {
    browser->end();
  }
  if (self) {
    m_firstPageThere->complete();
  }
  for (size_t i = 0; self && i < m_pages.size(); ++i) {
    m_pages[i]->noteClosed(PageErrors::browserLost(reason));
  }
}

}  // namespace Corvex::Webhook
