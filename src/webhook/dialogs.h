#pragma once

#include "corvexhook/functioncallresult.h"

#include <QHash>
#include <QObject>
#include <QString>

#include <functional>

namespace Corvex::Webhook {

class BrowserWindows;
class Connection;

/// The dialogs that pages open by themselves, as test scripts answer them. Some browsers show the native dialog; in the
/// others the page has swallowed it, or stands still until it is told the answer.
class Dialogs : public QObject {
  Q_OBJECT

public:
  /// Lets milliseconds pass while events are served.
  using Sleep = std::function<void(int)>;

  Dialogs(BrowserWindows& windows, const Sleep& sleep);

  /// Each waits for a dialog of its kind and answers it. An error tells what is open instead.
  QString closeAlert(int timeoutMs);
  QString closeConfirm(bool accept, int timeoutMs);
  /// A null text cancels the prompt.
  QString closePrompt(const QString& text, int timeoutMs);

  /// What the last dialog of the kind ("alert", "confirm", "prompt") said; empty before there was one.
  FunctionCallResult<QString> lastText(const QString& kind) const;
  /// What the field of the last prompt held at first.
  FunctionCallResult<QString> lastPromptDefault() const;

  /// The sentence for calls that an open dialog blocks; empty when none is open in the current window.
  QString obstacle() const;

private:
  QString answer(const QString& kind, bool accept, const QString& text, int timeoutMs);
  Connection* showing(const QString& kind) const;
  FunctionCallResult<QString> fromPage(const QString& function) const;

  BrowserWindows& m_windows;
  Sleep m_sleep;
};

}  // namespace Corvex::Webhook
