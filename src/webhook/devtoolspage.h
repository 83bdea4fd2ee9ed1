#pragma once

#include <memory>
#include <vector>

#include "webhook/browserpage.h"
#include "webhook/devtools.h"
#include "webhook/pagecall.h"
#include "webhook/pageloading.h"

namespace Corvex::Webhook {

class BrowserSession;

/// A page driven over the DevTools protocol.
class DevToolsPage : public BrowserPage {
  Q_OBJECT

public:
  /// Begins to watch the page, gives it its start scripts and lets it go on. Channel and session outlive the page.
  DevToolsPage(Channel& channel, const BrowserSession& session, const DevTools::Target& target,
               const QStringList& startScripts);
  ~DevToolsPage() override;

  Evaluation evaluate(const QString& code, int timeoutMs) override;
  QString navigate(const QString& url, int timeoutMs) override;
  QString addStartScript(const QString& text) override;
  Screenshot screenshot(bool wholePage) override;
  ZoomFactor zoomFactor() override;
  QString setFiles(const QString& referenceExpression, const QStringList& paths) override;
  std::optional<Dialog> openDialog() const override { return m_dialog; }
  QString answerDialog(bool accept, const QString& text) override;
  QString close() override;
  QString url() const override { return m_url; }
  bool isAvailable() const override { return whyUnavailable().isEmpty(); }
  bool isOpen() const override { return m_whyClosed.isEmpty(); }

  const QString& targetId() const { return m_target; }
  const QString& sessionId() const { return m_sessionId; }

  /// The page is gone: ends what is open in it and tells so. `sentence` is what later calls answer.
  void noteClosed(const QString& sentence);

private:
  PageCall makeCall(int timeoutMs) const;
  QString whyUnavailable() const;
  Reply loadAndWait(PageCall& call, const QString& url, PageLoading& loading);

  void takeEvent(const QString& method, const QJsonObject& parameters);
  void onFrameNavigated(const QJsonObject& parameters);
  void onNavigatedWithinDocument(const QJsonObject& parameters);
  void onLifecycleEvent(const QJsonObject& parameters);
  void onDialogOpening(const QJsonObject& parameters);
  void onDialogClosed(const QJsonObject& parameters);
  void onCrashed(const QJsonObject& parameters);

  void endOpenCalls(const QString& error);

  Channel& m_channel;
  const BrowserSession& m_session;
  const QString m_sessionId;
  const QString m_target;
  QString m_url;
  QString m_whyClosed;
  bool m_crashed = false;
  int m_leaving = 0;  ///< Calls under way that leave the document.
  std::optional<Dialog> m_dialog;
  int m_dialogCount = 0;
  std::shared_ptr<Request> m_watched;  ///< Complete when events come and start scripts take effect.
  std::vector<std::shared_ptr<PageLoading>> m_loadings;
  std::shared_ptr<Pending> m_closing = std::make_shared<Pending>();
};

}  // namespace Corvex::Webhook
