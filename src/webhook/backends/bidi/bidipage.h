#pragma once

#include "webhook/backends/bidi/bidievaluation.h"
#include "webhook/browser/protocolpage.h"
#include "webhook/protocol/bidi/bidi.h"
#include "webhook/protocol/bidi/bidicookies.h"
#include "webhook/protocol/bidi/bidiinput.h"

namespace Corvex::Webhook {

class BidiSession;

/// A page driven over WebDriver BiDi.
///
/// The protocol cannot end a script that runs. Where the browser lets DevTools requests through, code whose time is
/// over is ended all the same; elsewhere it goes on in the page, and only its answer is lost.
class BidiPage : public ProtocolPage {
  Q_OBJECT

public:
  /// The channel and the session outlive the page.
  BidiPage(Channel& channel, BidiSession& session, const Bidi::Context& context);
  ~BidiPage() override;

  JavaScriptAnswer evaluate(const QString& code, int timeoutMs) override;
  QString addStartScript(const QString& text) override;
  FunctionCallResult<QImage> screenshot(bool wholePage) override;

  /// Where the browser does not tell its zoom: how many device pixels a CSS pixel has, compared with the first call.
  FunctionCallResult<double> zoomFactor() override;

  const QString& contextId() const { return m_context; }

  /// Has the dialogs and the console of a frame reported here, too.
  void watchFrame(const QString& frame);

  /// Whether the browser knows it by this DevTools session.
  bool hasDevToolsSession(const QString& session) const;
  void noteRealmGone(const QString& realm);
  /// What the page was on its way to became a file, and the document stays.
  void noteDownload(const QString& navigation);

private:
  PlaceNow placeNow();
  Reply loadAndWait(PageCall& call, const Destination& destination, PageLoading& loading) override;
  Reply goThroughHistoryAndWait(PageCall& call, int steps, PageLoading& loading);
  /// Firefox does not tell when it goes to another part of the document that is there. Looks whether it has done so.
  void lookForWayWithinDocument(PageCall& call);
  bool isStartPage() const override { return !m_hasOpener && Bidi::isStartPage(url()); }
  void stopLoading() override;
  QString giveInput(PageCall& call, const InputSteps& steps) override;
  Command cookieList() const override { return Bidi::listCookies(m_context); }
  QVector<Cookie> readCookies(const QJsonObject& answer) const override;
  Command cookieSetting(const Cookie& cookie) const override { return Bidi::setCookie(m_context, cookie); }
  Command cookieDeletion(const Cookie& cookie) const override { return Bidi::deleteCookie(m_context, cookie); }
  Command viewportSetting(const QSize& size, double pixelRatio) override;
  Command dialogAnswer(bool accept, const QString& text) const override;
  bool takesFilesOfThisMachine() const override;
  QString putFiles(PageCall& call, const QString& referenceExpression, const QStringList& paths) override;
  Command closing() const override { return Bidi::closePage(m_context); }
  void prepareClosing(PageCall& call) override;
  void endOpenCalls(const QString& error) override;
  QString devToolsSession(PageCall& call) const;
  void endRunningCode();

  void takeEvent(const QString& method, const QJsonObject& parameters);
  void onNavigationCommitted(const QJsonObject& parameters);
  void onNavigationStarted(const QJsonObject& parameters);
  void onFetchError(const QJsonObject& parameters);
  void onNavigationEnded(const QJsonObject& parameters);
  void onNavigatedWithinDocument(const QJsonObject& parameters);
  void onLoad(const QJsonObject& parameters);
  void onRealmCreated(const QJsonObject& parameters);
  void onDialogOpened(const QJsonObject& parameters);
  void onDialogClosed(const QJsonObject& parameters);

  BidiSession& m_bidiSession;
  const QString m_context;
  const bool m_hasOpener;
  QString m_realm;  ///< Of the document that is there, if it is known.
  std::shared_ptr<Pending> m_realmThere = std::make_shared<Pending>();
  QString m_document;            ///< The navigation that brought it.
  QString m_navigationUnderWay;  ///< Or the last that was.
  Bidi::InputWriter m_input;
  bool m_framesGuarded = false;
  std::optional<double> m_plainPixelRatio;
  std::shared_ptr<Request> m_devTools;  ///< Asks for the page's DevTools session; other browsers refuse it.
};

}  // namespace Corvex::Webhook
