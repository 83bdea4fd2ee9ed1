#pragma once

#include <QHash>
#include <memory>
#include <vector>

#include "webhook/backends/bidi/bidipage.h"
#include "webhook/backends/bidi/firefox.h"
#include "webhook/backends/bidi/webdriver.h"
#include "webhook/browser/browsersession.h"
#include "webhook/protocol/channel.h"

namespace Corvex::Webhook {

/// A browser driven over WebDriver BiDi: a Firefox that was started, or the browser of a WebDriver server.
class BidiSession : public BrowserSession {
  Q_OBJECT

public:
  static Start startFirefox(const SessionOptions& options);
  static Start startRemote(const SessionOptions& options);

  /// Has a server end its browser, and waits for that as close() does.
  ~BidiSession() override;

  BrowserPage* firstPage() const override;
  QVector<BrowserPage*> pages() const override;
  FunctionCallResult<BrowserPage*> newPage() override;

  /// The script also runs in the next documents of pages that are open already.
  QString addStartScriptOfNewPages(const QString& text) override;

  void close() override;
  bool isLost() const override { return m_ended; }
  QString browserName() const override { return m_info.name; }
  QString browserVersion() const override { return m_info.version; }
  Capabilities capabilities() const override;
  qint64 browserProcess() const override;
  QString browserDirectory() const override;

  /// Opens a page that nobody sees here if `page` is the last one: browsers end with their last page, or keep it.
  void keepBrowserOpenWithout(const BidiPage& page, PageCall& call);

private:
  BidiSession(Firefox::Instance browser, std::unique_ptr<WebDriverSession> remote,
              std::unique_ptr<Transport> transport);

  static Start connectTo(const SessionOptions& options, const QUrl& url, Firefox::Instance browser,
                         std::unique_ptr<WebDriverSession> remote, const QDeadlineTimer& deadline);

  /// Waits until the first page is known. Gives the error, or "".
  QString open(const QDeadlineTimer& deadline);
  QString askForSession(const QDeadlineTimer& deadline);

  void takeEvent(const QString& method, const QJsonObject& parameters);
  void onContextCreated(const Bidi::Context& context);
  void onContextDestroyed(const Bidi::Context& context);
  void onCrashed(const QString& devToolsSession);
  BidiPage* addPage(const Bidi::Context& context);
  BidiPage* pageOf(const QString& context) const;

  void lose(const QString& reason);
  void endBrowser();

  Firefox::Instance m_browser;                 ///< Empty for a visited browser.
  std::unique_ptr<WebDriverSession> m_remote;  ///< Null for one that was started.
  Channel m_channel;
  std::vector<std::unique_ptr<BidiPage>> m_pages;  ///< Closed ones included: callers may still hold them.
  QHash<QString, QString> m_pageOfFrame;
  int m_hiddenPagesToCome = 0;
  bool m_framesGuarded = false;
  Bidi::BrowserInfo m_info;
  bool m_ended = false;
};

}  // namespace Corvex::Webhook
