#pragma once

#include <QHash>

#include "webhook/backends/bidi/bidipage.h"
#include "webhook/browser/protocolsession.h"

namespace Corvex::Webhook {

/// A browser driven over WebDriver BiDi: a Firefox that was started, or the browser of a WebDriver server.
class BidiSession : public ProtocolSession {
  Q_OBJECT

public:
  static Start startFirefox(const SessionOptions& options);
  static Start startRemote(const SessionOptions& options);

  /// Has a server end its browser, and waits for that as close() does.
  ~BidiSession() override { finish(); }

  FunctionCallResult<BrowserPage*> newPage() override;
  void setCredentials(const QVector<Credentials>& credentials) override {
    authentication().setCredentials(credentials);
  }
  Downloads* downloads() override;

  /// The script also runs in the next documents of pages that are open already.
  QString addStartScriptOfNewPages(const QString& text) override;

  /// Opens a page that nobody sees here if `page` is the last one: browsers end with their last page, or keep it.
  void keepBrowserOpenWithout(const BidiPage& page, PageCall& call);

  /// Has the browser give a page the focus, unless it has it.
  void bringToFront(const QString& context);

private:
  BidiSession(std::unique_ptr<OwnedBrowser> browser, std::unique_ptr<Transport> transport);

  /// What a server says of its browser, null when the browser has to be asked for a session.
  static Start connectTo(const SessionOptions& options, const QUrl& url, std::unique_ptr<OwnedBrowser> browser,
                         const QJsonObject* capabilities, const QDeadlineTimer& deadline);

  /// Waits until the first page is known. Gives the error, or "".
  QString open(const QJsonObject* capabilities, const QDeadlineTimer& deadline);
  QString askForSession(const QDeadlineTimer& deadline);
  void takeCapabilities(const QJsonObject& capabilities);

  void takeEvent(const QString& method, const QJsonObject& parameters) override;
  void onContextCreated(const Bidi::Context& context);
  void onContextDestroyed(const Bidi::Context& context);
  void onDownload(const DownloadNews& news, const QJsonObject& parameters);
  void onCrashed(const QString& devToolsSession);
  void takePage(const Bidi::Context& context);

  QHash<QString, BidiPage*> m_pageOfContext;
  QHash<QString, QString> m_pageOfFrame;
  QString m_contextInFront;
  QString m_downloadFolder;
  std::shared_ptr<Request> m_downloadsKept;  ///< Refused by browsers that cannot do it.
  bool m_ignoresCertificateErrors = false;
  int m_hiddenPagesToCome = 0;
  bool m_framesGuarded = false;
};

}  // namespace Corvex::Webhook
