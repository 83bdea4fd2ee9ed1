#pragma once

#include "webhook/browser/browserpage.h"
#include "webhook/pages/hookinjector.h"
#include "wrappers/web/page/htmlcomponent.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <optional>

namespace Corvex::Webhook {

/// One page of a browser as the wrapper's page objects see it.
class Connection : public QObject, public WebWrapper::HTMLComponent {
  Q_OBJECT

public:
  /// Borrows page and configuration; the configuration outlives the connection, the page may go at any time. `tabId` is
  /// what the page knows itself by.
  Connection(BrowserPage* page, const WebWrapper::WrapperConfig* config, const BrowserIdentity& browser,
             const QString& tabId, QObject* parent = nullptr);

  /// Has every top document from now on hooked, and the present one too. An error names the extension script to blame,
  /// if any.
  QString install();
  /// Loads a page and sees to it that it is hooked.
  QString navigate(const QString& url, int timeoutMs = 0);
  /// The same for the page that is there, and for those before and after it; see `BrowserPage`.
  QString reload();
  QString goThroughHistory(int steps);
  /// Closes the page.
  QString close();
  bool isOpen() const;
  /// See `BrowserPage::perform`.
  QString perform(const InputSteps& steps);
  /// See `BrowserPage::awaitNavigation`. A form is sent a moment after the key that sends it, so the page is to be
  /// asked something before.
  void awaitNavigation();
  BrowserPage* page() const { return m_page; }
  const QString& tabId() const { return m_tabId; }
  /// Of the document that the page shows, also while the page cannot be asked.
  QString address() const { return m_page ? m_page->url() : QString(); }

  /// Selects a context of this page, by its name inside the page; after a reload it is selected again. False where
  /// there is none of that name: a window that gets the name later is then selected. A page that a dialog may hold is
  /// told when it is asked next.
  bool setContext(const QString& name);

  /// `whyNotAsk` is asked before each question to the page and after one that got no answer. What it says, if anything,
  /// is the answer.
  void setObstacle(const std::function<QString()>& whyNotAsk) { m_whyNotAsk = whyNotAsk; }
  /// `mayBeHeld` says, without asking the page, whether a dialog that is shown may keep it from answering.
  void setDoubt(const std::function<bool()>& mayBeHeld) { m_mayBeHeld = mayBeHeld; }
  bool mayBeHeld() const { return m_mayBeHeld(); }

  /// Whether a question to the page is under way.
  bool isBusy() const { return m_questions > 0; }

  /// The dialog that keeps the page's scripts from going on.
  std::optional<Dialog> openDialog() const;
  /// A null text leaves a prompt's field as it is. On return the page's scripts have gone on, as far as the next
  /// dialog.
  QString answerDialog(bool accept, const QString& text);

  JavaScriptAnswer evaluateJS(const QString& code, unsigned int timeoutMs) override;
  JavaScriptAnswer evaluateInAnyDocument(const QString& code, unsigned int timeoutMs) override;
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
  /// The connection's own `navigate` begins.
  void navigating(const QString& url);

private:
  /// Has the page go elsewhere by `leave`, which answers why it could not, and sees to it that it is hooked there.
  QString go(const QString& url, const std::function<QString(BrowserPage&)>& leave);
  JavaScriptAnswer ask(const QString& code, unsigned int timeoutMs);
  /// Makes a document that was not asked anything yet ready for questions. Answers why it is not, or an empty text.
  QString greetDocument();
  bool applyContext();
  /// Waits until the page's scripts stand still no more.
  void awaitScripts();
  QString upload(const QString& reference, const QString& path);

  QPointer<BrowserPage> m_page;
  const WebWrapper::WrapperConfig* m_config;
  BrowserIdentity m_browser;
  QString m_tabId;
  int m_documentsGone = 0;
  QString m_contextName;
  std::function<bool()> m_mayBeHeld = [this] { return openDialog().has_value(); };
  std::function<QString()> m_whyNotAsk = [] { return QString(); };
  bool m_greeted = false;
  int m_document = 0;  ///< Counts the documents that were greeted; each knows its number.
  int m_questions = 0;
};

}  // namespace Corvex::Webhook
