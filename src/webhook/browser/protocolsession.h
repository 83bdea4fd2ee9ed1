#pragma once

#include <memory>
#include <vector>

#include "webhook/browser/authentication.h"
#include "webhook/browser/browsersession.h"
#include "webhook/browser/ownedbrowser.h"
#include "webhook/browser/protocolpage.h"
#include "webhook/protocol/transport/channel.h"

namespace Corvex::Webhook {

/// What sessions have in common whose browser is driven by requests and events of a channel: the pages, and the end,
/// which may come from any side.
class ProtocolSession : public BrowserSession {
  Q_OBJECT

public:
  BrowserPage* firstPage() const override { return m_pages.front().get(); }
  QVector<BrowserPage*> pages() const override;
  void close() override;
  bool isLost() const override { return m_ended; }
  QString browserName() const override { return m_name; }
  QString browserVersion() const override { return m_version; }
  Downloads* downloads() override { return m_downloads.get(); }
  Capabilities capabilities() const override { return {true, true, true, true, true}; }
  qint64 browserProcess() const override { return m_browser ? m_browser->process() : 0; }
  QString browserDirectory() const override { return m_browser ? m_browser->directory() : QString(); }

protected:
  /// `browser` is null for one that is only visited.
  ProtocolSession(std::unique_ptr<OwnedBrowser> browser, std::unique_ptr<Transport> transport, const Dialect& dialect);

  /// Ends everything without a signal. To be called by each destructor, as events are served meanwhile.
  void finish();

  /// What the session still asks the browser before it ends. This object may be gone on return.
  virtual void prepareClosing() {}
  /// An event of the browser itself.
  virtual void takeEvent(const QString& method, const QJsonObject& parameters) = 0;

  /// Takes the page in, and tells of it unless it is the session's own first one.
  void addPage(std::unique_ptr<ProtocolPage> page);
  bool hasPages() const { return !m_pages.empty(); }
  void setBrowser(const QString& name, const QString& version);

  /// Waits until there is a page or the browser is lost. Gives the sentence for what is missing, or "".
  QString awaitFirstPage(const QDeadlineTimer& deadline);

  /// Has them in this folder from now on.
  void keepDownloads(const QString& folder) { m_downloads = std::make_unique<Downloads>(folder); }
  void takeDownload(const std::optional<DownloadNews>& news);

  Authentication& authentication() { return m_authentication; }
  bool isVisited() const { return !m_browser; }
  Channel& channel() { return m_channel; }

private:
  void lose(const QString& reason);
  /// Ends channel and browser, and closes the pages. This object may be gone on return.
  void end(const QString& reason);

  const std::shared_ptr<OwnedBrowser> m_browser;
  Channel m_channel;
  std::vector<std::unique_ptr<ProtocolPage>> m_pages;  ///< Closed ones included: callers may still hold them.
  std::shared_ptr<Pending> m_firstPageThere = std::make_shared<Pending>();
  Authentication m_authentication;
  std::unique_ptr<Downloads> m_downloads;
  QString m_name;
  QString m_version;
  bool m_ended = false;
};

}  // namespace Corvex::Webhook
