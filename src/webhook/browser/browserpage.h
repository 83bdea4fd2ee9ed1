#pragma once

#include "shared/functioncallresult.h"
#include "shared/javascriptanswer.h"
#include "webhook/protocol/consolemessage.h"
#include "webhook/protocol/cookie.h"
#include "webhook/protocol/dialog.h"
#include "webhook/protocol/inputstep.h"

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>
#include <optional>

namespace Corvex::Webhook {

/// One page (tab) of a browser. No caller needs to know by which protocol it is driven.
///
/// Every call returns within its time, whatever becomes of page and browser. While it waits, events are served: signals
/// come, other calls may be made from them, and the session may be closed. Errors are sentences; "" is success.
class BrowserPage : public QObject {
  Q_OBJECT

public:
  ~BrowserPage() override;

  /// Evaluates `code` as a script of the top document: global sloppy scope, several statements allowed, also where the
  /// page's security policy forbids evaluation. The answer is the completion value, as String() gives it.
  ///
  /// `timeoutMs` 0 stands for the session's default. When it is over, the code is ended in the page and its answer is
  /// lost. A dialog that opens meanwhile, a new document, the page's end, its crash and the browser's end abort the
  /// call at once.
  virtual JavaScriptAnswer evaluate(const QString& code, int timeoutMs = 0) = 0;

  /// Loads `url` and waits for its load event. A question of the old page whether to leave it is answered with yes.
  virtual QString navigate(const QString& url, int timeoutMs = 0) = 0;

  /// The same for the page that is there once more, and for one of the pages before and after it: `steps` is how many
  /// pages to go on, or below 0, to go back.
  virtual QString reload(int timeoutMs = 0) = 0;
  virtual QString goThroughHistory(int steps, int timeoutMs = 0) = 0;

  /// Has `text` run at document start of every top document from the next one on, before the page's own scripts and
  /// after those that were added before. It runs in the global scope, and in no frame.
  virtual QString addStartScript(const QString& text) = 0;

  /// The page as it is in view, or its whole length.
  virtual FunctionCallResult<QImage> screenshot(bool wholePage) = 0;

  /// CSS pixels to device-independent pixels: 1.0 unless the page was zoomed.
  virtual FunctionCallResult<double> zoomFactor() = 0;

  /// Puts files into the file input that `referenceExpression` names; the page gets the events of a user's choice.
  virtual QString setFiles(const QString& referenceExpression, const QStringList& paths) = 0;

  /// Gives the browser input as a person at the machine would, in the order of the steps, and waits until the page has
  /// taken it. What the input leads to is no error: a dialog, another document, the page's end.
  virtual QString perform(const InputSteps& steps) = 0;

  /// Where the page is on its way to another document, waits until that is there, its scripts have run, or it does not
  /// come; but not for ever, since not all browsers tell of the latter.
  virtual void awaitNavigation() = 0;

  /// What the page wrote to its console and its uncaught errors, in all of its documents so far, the oldest first. Of
  /// very many the last ones, of a very long text its beginning.
  virtual QVector<ConsoleMessage> consoleMessages() const = 0;

  /// The cookies that the browser sends for the page's address, and how to give it another one. `deleteCookies` deletes
  /// those that `cookies` gives.
  virtual FunctionCallResult<QVector<Cookie>> cookies() = 0;
  virtual QString setCookie(const Cookie& cookie) = 0;
  virtual QString deleteCookies() = 0;

  /// Makes the part of the page that is in view as large as this, in CSS pixels, each of `pixelRatio` screen pixels, of
  /// as many as before with 0.
  virtual QString setViewport(const QSize& size, double pixelRatio) = 0;

  virtual std::optional<Dialog> openDialog() const = 0;

  /// Ends the open dialog. `text` goes into a prompt's field; a null text leaves what is there.
  virtual QString answerDialog(bool accept, const QString& text = {}) = 0;

  /// Closes the page without a question, and waits until it is closed.
  virtual QString close() = 0;

  virtual QString url() const = 0;

  /// Why the page cannot be asked anything now: it is closed, crashed, or shows a dialog. "" when it can.
  virtual QString whyUnavailable() const = 0;
  bool isAvailable() const { return whyUnavailable().isEmpty(); }

  /// Whether the page is there at all. A closed page stays a valid object until its session goes.
  virtual bool isOpen() const = 0;

Q_SIGNALS:
  /// Another document took the place of the top document; whatever was known of the old one is void.
  void navigated(const QString& url);
  void dialogOpened();
  void consoleWritten(const Corvex::Webhook::ConsoleMessage& message);
  /// The page is gone, by itself, by close(), or with its browser.
  void closed(const QString& reason);
  /// The page's process ended. The page stays and can be navigated again.
  void crashed();
};

}  // namespace Corvex::Webhook
