#pragma once

#include "webhook/browser/authentication.h"
#include "webhook/browser/protocolpage.h"
#include "webhook/protocol/devtools/devtools.h"
#include "webhook/protocol/devtools/devtoolscookies.h"
#include "webhook/protocol/devtools/devtoolsinput.h"

namespace Corvex::Webhook {

/// A page driven over the DevTools protocol.
class DevToolsPage : public ProtocolPage {
  Q_OBJECT

public:
  /// Begins to watch the page, gives it its start scripts and lets it go on. Channel, session and
  /// authentication outlive the page.
  DevToolsPage(Channel& channel, const BrowserSession& session, Authentication& authentication,
               const DevTools::Target& target, const QStringList& startScripts);

  JavaScriptAnswer evaluate(const QString& code, int timeoutMs) override;
  QString addStartScript(const QString& text) override;
  FunctionCallResult<QImage> screenshot(bool wholePage) override;
  FunctionCallResult<double> zoomFactor() override;

  /// Has requests wait for a word of this side, as far as the credentials that there are need it.
  void holdRequests();

  const QString& targetId() const { return m_target; }
  const QString& sessionId() const { return m_sessionId; }

private:
  Reply loadAndWait(PageCall& call, const Destination& destination, PageLoading& loading) override;
  Reply navigateAndWait(PageCall& call, const QString& url, PageLoading& loading);
  Reply goThroughHistoryAndWait(PageCall& call, int steps, PageLoading& loading);
  void stopLoading() override { start(DevTools::stopLoading()); }
  Command cookieList() const override { return DevTools::listCookies(url()); }
  QVector<Cookie> readCookies(const QJsonObject& answer) const override { return DevTools::readCookies(answer); }
  Command cookieSetting(const Cookie& cookie) const override;
  bool isCookieSet(const QJsonObject& answer) const override { return DevTools::isCookieSet(answer); }
  Command cookieDeletion(const Cookie& cookie) const override { return DevTools::deleteCookie(cookie); }
  Command viewportSetting(const QSize& size, double pixelRatio) override {
    return DevTools::setViewport(size, pixelRatio);
  }
  Command dialogAnswer(bool accept, const QString& text) const override { return DevTools::answerDialog(accept, text); }
  QString putFiles(PageCall& call, const QString& referenceExpression, const QStringList& paths) override;
  QString giveInput(PageCall& call, const InputSteps& steps) override;
  Command closing() const override { return DevTools::closePage(m_target); }

  void takeEvent(const QString& method, const QJsonObject& parameters);
  /// Whether it was about a request that waits.
  bool letRequestGoOn(const QString& method, const QJsonObject& parameters);
  void onFrameNavigated(const QJsonObject& parameters);
  void onNavigationRequested(const QJsonObject& parameters);
  void onStoppedLoading(const QJsonObject& parameters);
  void onNavigatedWithinDocument(const QJsonObject& parameters);
  void onLifecycleEvent(const QJsonObject& parameters);
  void onDialogOpening(const QJsonObject& parameters);
  void onDialogClosed(const QJsonObject& parameters);
  void onCrashed(const QJsonObject& parameters);

  Authentication& m_authentication;
  const QString m_sessionId;
  const QString m_target;
  DevTools::InputWriter m_input;
  std::shared_ptr<Request> m_watched;  ///< Complete when events come and start scripts take effect.
};

}  // namespace Corvex::Webhook
