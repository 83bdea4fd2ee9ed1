#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <QString>
#include <QVector>
#include <memory>

#include "webhook/browser/browserpage.h"
#include "webhook/browser/downloads.h"
#include "webhook/browser/proxy.h"
#include "webhook/protocol/credentials.h"

namespace Corvex::Webhook {

struct SessionOptions {
  QString browser;         ///< "chromium", "firefox" or the path of a program; "" takes the Chromium that is installed.
  QString attachTo;        ///< ws://... of a browser that runs already; then none is started.
  QString remoteUrl;       ///< http://host:port of a WebDriver server that starts one; then none is started here.
  QString capabilities;    ///< What the server is asked for: JSON, or @ and the path of a file of JSON.
  bool headed = false;     ///< Show its windows.
  QString downloadFolder;  ///< Takes what pages download, if the browser is started here; "" leaves it to the browser.
  bool ignoreCertificateErrors = false;
  Proxy proxy;
  QString pastProxy;  ///< host:port of what is asked for without the proxy.
  int startTimeoutMs = 30000;
  int defaultTimeoutMs = 20000;  ///< Of calls that are given no time.
  QStringList extraArguments;    ///< For the browser's command line.
};

/// What a browser's back end can do, for callers to ask instead of asking which browser it is.
struct Capabilities {
  bool startScripts = false;
  bool screenshots = false;
  bool wholePageScreenshots = false;
  bool fileUpload = false;
  bool zoomFactor = false;
};

/// One browser, started by this program or only visited. Deleting it is as good as close().
class BrowserSession : public QObject {
  Q_OBJECT

public:
  /// The error says why there is none, and what to do.
  using Start = FunctionCallResult<std::unique_ptr<BrowserSession>>;

  /// Starts a browser with a fresh profile, or attaches to a running one. Its first page is open on return. The table
  /// of back ends, where this is defined, chooses the kind of session.
  static Start start(const SessionOptions& options);

  ~BrowserSession() override;

  /// The session's own page, valid as long as the session, open or closed.
  virtual BrowserPage* firstPage() const = 0;

  /// All open pages, those that pages opened included, oldest first.
  virtual QVector<BrowserPage*> pages() const = 0;

  virtual FunctionCallResult<BrowserPage*> newPage() = 0;

  /// Has `text` run in every page that opens from now on, as `BrowserPage::addStartScript` has it in one: in the first
  /// document already, before the page's own scripts.
  virtual QString addStartScriptOfNewPages(const QString& text) = 0;

  /// Ends the browser that was started, with its processes and its profile; of a visited one, closes the session's
  /// pages. Open calls end. No signal lost().
  virtual void close() = 0;

  /// What servers are told from now on that ask for a user and a password, in place of what they were. Others than
  /// those are refused at once, so that no page waits. The browser itself keeps what a server took until its end.
  virtual void setCredentials(const QVector<Credentials>& credentials) = 0;

  virtual bool isLost() const = 0;

  /// What pages downloaded. Null where the files are not here: of a visited browser, of a server's, and of one that
  /// knows no way to tell of them.
  virtual Downloads* downloads() = 0;

  virtual QString browserName() const = 0;
  virtual QString browserVersion() const = 0;
  virtual Capabilities capabilities() const = 0;

  /// Process id of the browser that was started, 0 for a visited one.
  virtual qint64 browserProcess() const = 0;

  /// Where the browser that was started keeps its files, "" for a visited one.
  virtual QString browserDirectory() const = 0;

  /// The time of calls that are given none, in milliseconds.
  int defaultTimeout() const { return m_defaultTimeoutMs; }
  void setDefaultTimeout(int milliseconds) { m_defaultTimeoutMs = milliseconds; }

  /// When calls of pages end, whatever time they are given; see `CallLimit`.
  const QDeadlineTimer& callsEnd() const { return m_callsEnd; }
  void setCallsEnd(const QDeadlineTimer& end) { m_callsEnd = end; }

Q_SIGNALS:
  /// The browser ended or cannot be reached any more. Open calls have ended, and nothing of it is left on the machine.
  void lost(const QString& reason);

  /// A page opened by itself, or by newPage().
  void pageOpened(Corvex::Webhook::BrowserPage* page);

private:
  int m_defaultTimeoutMs = 20000;
  QDeadlineTimer m_callsEnd{QDeadlineTimer::Forever};
};

}  // namespace Corvex::Webhook
