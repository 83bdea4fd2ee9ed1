#pragma once

#include "webhook/browserpage.h"
#include "webhook/hookinjector.h"
#include "wrappers/web/htmlcomponent.h"

#include <QObject>
#include <QPointer>

namespace Corvex::Webhook {

/// One page of a browser as the wrapper's page objects see it.
class Connection : public QObject, public WebWrapper::HTMLComponent {
  Q_OBJECT

public:
  /// Borrows all three; they outlive the connection, but the page may go at any time.
  Connection(BrowserPage* page, const WebWrapper::WrapperConfig* config, const BrowserIdentity& browser,
             QObject* parent = nullptr);

  /// Has every top page from now on hooked, and the present one too. An error names the extension script to blame, if any.
  QString install();
  /// Loads a page and sees to it that it is hooked.
  QString navigate(const QString& url, int timeoutMs = 0);
  /// Closes the page.
  QString close();
  bool isOpen() const;

  WebWrapper::JavaScriptAnswer evaluateJS(const QString& code, unsigned int timeoutMs) override;
  int browserKind() override;
  bool isAvailable() override;
  const WebWrapper::WrapperConfig* config() override;
  bool supportsPageScreenshot() override;
  FunctionCallResult<QImage> grabPageScreenshot() override;
  FunctionCallResult<double> zoomFactor() override;
  QString selectFileToUpload(WebWrapper::HTML_TextBase* field, const QString& path) override;
  QString selectFileToUpload(WebWrapper::HTML_CustomText* field, const QString& path) override;

Q_SIGNALS:
  /// The top document went away: what was known of its objects is void.
  void documentGone();

private:
  QString upload(const QString& reference, const QString& path);

  QPointer<BrowserPage> m_page;
  const WebWrapper::WrapperConfig* m_config;
  BrowserIdentity m_browser;
};

}  // namespace Corvex::Webhook
