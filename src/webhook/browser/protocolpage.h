#pragma once

#include "webhook/browser/browserpage.h"
#include "webhook/browser/pagecall.h"
#include "webhook/browser/pageloading.h"

#include <memory>
#include <vector>

namespace Corvex::Webhook {

class BrowserSession;

/// Where a page is to go.
struct Destination {
  enum Kind { Address, SamePage, History };

  Kind kind = Address;
  QString url;    ///< Of an address; of the other kinds the page that is left.
  int steps = 0;  ///< In the history: forward, or back if below 0.
};

/// What pages have in common whose browser is driven by requests and events of a channel: the dialog that is open, the
/// loads and calls under way, and how they end.
class ProtocolPage : public BrowserPage {
  Q_OBJECT

public:
  ~ProtocolPage() override;

  QString navigate(const QString& url, int timeoutMs) override;
  QString reload(int timeoutMs) override;
  QString goThroughHistory(int steps, int timeoutMs) override;
  QString setFiles(const QString& referenceExpression, const QStringList& paths) override;
  QString perform(const InputSteps& steps) override;
  void awaitNavigation() override;
  FunctionCallResult<QVector<Cookie>> cookies() override;
  QString setCookie(const Cookie& cookie) override;
  QString deleteCookies() override;
  QString setViewport(const QSize& size, double pixelRatio) override;
  QVector<ConsoleMessage> consoleMessages() const override { return m_console; }
  std::optional<Dialog> openDialog() const override { return m_dialog; }
  QString answerDialog(bool accept, const QString& text) override;
  QString close() override;
  QString url() const override { return m_url; }
  QString whyUnavailable() const override;
  bool isOpen() const override { return m_whyClosed.isEmpty(); }

  /// The page is gone: ends what is open in it and tells so. `sentence` is what later calls answer.
  void noteClosed(const QString& sentence);
  void noteCrashed();

protected:
  /// Channel and session outlive the page. `address` is what the channel knows the page by.
  ProtocolPage(Channel& channel, const BrowserSession& session, const QString& address, const QString& url);

  /// Asks the browser to go there and waits for it. A load that the browser refused gives Reply::Refused and the
  /// browser's code for the reason. The page may be gone when it returns.
  virtual Reply loadAndWait(PageCall& call, const Destination& destination, PageLoading& loading) = 0;
  /// Whether it shows what the browser's window began with, which no script knows of. To be told by back ends whose
  /// browsers go back to that page.
  virtual bool isStartPage() const { return false; }
  /// The load that was asked for took too long.
  virtual void stopLoading() = 0;
  /// Otherwise the paths are those of the browser's machine, and only the browser can look at them.
  virtual bool takesFilesOfThisMachine() const { return true; }
  virtual QString putFiles(PageCall& call, const QString& referenceExpression, const QStringList& paths) = 0;
  virtual QString giveInput(PageCall& call, const InputSteps& steps) = 0;
  virtual Command cookieList() const = 0;
  virtual QVector<Cookie> readCookies(const QJsonObject& answer) const = 0;
  virtual Command cookieSetting(const Cookie& cookie) const = 0;
  virtual bool isCookieSet(const QJsonObject&) const { return true; }
  virtual Command cookieDeletion(const Cookie& cookie) const = 0;
  virtual Command viewportSetting(const QSize& size, double pixelRatio) = 0;
  virtual Command dialogAnswer(bool accept, const QString& text) const = 0;
  virtual Command closing() const = 0;
  virtual void prepareClosing(PageCall&) {}
  virtual void endOpenCalls(const QString& error);

  PageCall makeCall(int timeoutMs) const;
  QString whyClosed() const { return m_whyClosed; }
  std::shared_ptr<Request> start(const Command& command);
  Channel& channel() const { return m_channel; }

  void takeUrl(const QString& url) { m_url = url; }
  /// The page began to load a document in place of its own, and that is there with its scripts, or will not come.
  void noteNavigationBegun();
  void noteNavigationEnded() { m_navigation->complete(); }
  /// Another document is there. A listener may delete the page.
  void takeDocument(const QString& document, const QString& url);
  /// A dialog opened; the question whether to leave a page that is being left is answered here.
  void takeDialog(const Dialog& dialog);
  void takeConsoleMessage(ConsoleMessage message);
  void forgetDialog() { m_dialog.reset(); }
  const std::vector<std::shared_ptr<PageLoading>>& loadings() const { return m_loadings; }

private:
  QString go(const Destination& destination, int timeoutMs);

  Channel& m_channel;
  const BrowserSession& m_session;
  const QString m_address;
  QString m_url;
  QString m_whyClosed;
  bool m_crashed = false;
  int m_leaving = 0;  ///< Calls under way that leave the document.
  std::optional<Dialog> m_dialog;
  int m_dialogCount = 0;
  std::vector<std::shared_ptr<PageLoading>> m_loadings;
  std::shared_ptr<Pending> m_navigation = std::make_shared<Pending>();  ///< Complete while none is under way.
  QVector<ConsoleMessage> m_console;
  std::shared_ptr<Pending> m_closing = std::make_shared<Pending>();
};

}  // namespace Corvex::Webhook
