#pragma once

#include <memory>
#include <vector>

#include "webhook/bidi.h"
#include "webhook/browserpage.h"
#include "webhook/pagecall.h"
#include "webhook/pageloading.h"

namespace Corvex::Webhook {

class BidiSession;

/// A page driven over WebDriver BiDi.
///
/// The protocol cannot end a script that runs. Where the browser lets DevTools requests through, code whose time is
/// over is ended all the same; elsewhere it goes on in the page, and only its answer is lost.
class BidiPage : public BrowserPage {
  Q_OBJECT

public:
  /// The channel and the session outlive the page.
  BidiPage(Channel& channel, BidiSession& session, const Bidi::Context& context);
  ~BidiPage() override;

  Evaluation evaluate(const QString& code, int timeoutMs) override;
  QString navigate(const QString& url, int timeoutMs) override;
  QString addStartScript(const QString& text) override;
  Screenshot screenshot(bool wholePage) override;

  /// Where the browser does not tell its zoom: how many device pixels a CSS pixel has, compared with the first call.
  ZoomFactor zoomFactor() override;

  /// The paths of a visited browser are those of its own machine; they are not looked at before.
  QString setFiles(const QString& referenceExpression, const QStringList& paths) override;
  std::optional<Dialog> openDialog() const override { return m_dialog; }
  QString answerDialog(bool accept, const QString& text) override;
  QString close() override;
  QString url() const override { return m_url; }
  bool isAvailable() const override { return whyUnavailable().isEmpty(); }
  bool isOpen() const override { return m_whyClosed.isEmpty(); }

  const QString& contextId() const { return m_context; }

  /// Has the dialogs of a frame reported here, too.
  void watchFrame(const QString& frame);

  /// The page is gone: ends what is open in it and tells so. `sentence` is what later calls answer.
  void noteClosed(const QString& sentence);

  /// Whether the browser knows it by this DevTools session.
  bool hasDevToolsSession(const QString& session) const;
  void noteCrashed();
  void noteRealmGone(const QString& realm);

private:
  PageCall makeCall(int timeoutMs) const;
  Bidi::Place place() const;
  /// Waits until code can be given its place. Gives the obstacle that came up, or "".
  QString awaitPlace(PageCall& call);
  QString whyUnavailable() const;
  Reply loadAndWait(PageCall& call, const QString& url, PageLoading& loading);
  QString devToolsSession(PageCall& call) const;
  void endRunningCode();
  void stopLoading();

  void takeEvent(const QString& method, const QJsonObject& parameters);
  void onNavigationCommitted(const QJsonObject& parameters);
  void onNavigatedWithinDocument(const QJsonObject& parameters);
  void onLoad(const QJsonObject& parameters);
  void onRealmCreated(const QJsonObject& parameters);
  void onDialogOpened(const QJsonObject& parameters);
  void onDialogClosed(const QJsonObject& parameters);

  void takeDocument(const Bidi::Document& document);
  void endOpenCalls(const QString& error);

  Channel& m_channel;
  BidiSession& m_session;
  const QString m_context;
  QString m_url;
  QString m_realm;  ///< Of the document that is there, if it is known.
  std::shared_ptr<Pending> m_realmThere = std::make_shared<Pending>();
  QString m_whyClosed;
  bool m_crashed = false;
  QString m_document;  ///< The navigation that brought it.
  int m_leaving = 0;   ///< Calls under way that leave the document.
  std::optional<Dialog> m_dialog;
  int m_dialogCount = 0;
  bool m_framesGuarded = false;
  std::optional<double> m_plainPixelRatio;
  std::shared_ptr<Request> m_devTools;  ///< Asks for the page's DevTools session; other browsers refuse it.
  std::vector<std::shared_ptr<PageLoading>> m_loadings;
  std::shared_ptr<Pending> m_closing = std::make_shared<Pending>();
};

}  // namespace Corvex::Webhook
