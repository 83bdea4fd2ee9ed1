#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QVector>

namespace Corvex::Webhook {

class BrowserWindows;
class Connection;
class MessageEndpoint;
class PageMessage;
struct Dialog;

/// The dialogs that pages open by themselves, as test scripts answer them. The browser shows them until they are
/// answered. Where its protocol answers none, a page swallows its alerts and tells of them, and stands still until it
/// is told the answer to the others.
class Dialogs : public QObject {
  Q_OBJECT

public:
  /// Windows and endpoint outlive this object.
  Dialogs(BrowserWindows& windows, MessageEndpoint& endpoint);

  /// A page told of a dialog, or waits for the answer to one.
  void noteMessage(const PageMessage& message);
  void noteWaitEnded(quint64 waitId);

  /// Each waits for a dialog of its kind and answers it, the current window's first. An error tells what is open
  /// instead.
  QString closeAlert(int timeoutMs);
  /// The question whether to leave a page counts as a confirm.
  QString closeConfirm(bool accept, int timeoutMs);
  /// A null text cancels the prompt.
  QString closePrompt(const QString& text, int timeoutMs);

  /// What the last dialog of the kind ("alert", "confirm", "prompt") said; empty before there was one.
  QString lastText(const QString& kind) const { return m_texts.value(kind); }
  /// What the field of the last prompt held at first.
  QString lastPromptDefault() const;

  /// The sentence for calls that an open dialog blocks; empty when the window can be asked.
  QString whyNotAskPage(Connection& window) const;

private:
  /// A page that stands still until the driver answers.
  struct Wait {
    QString kind;
    quint64 id = 0;
  };

  void noteDialog(const Dialog& dialog);
  bool tryAnswer(const QString& kind, bool accept, const QString& text, QString* error);
  QString answer(const QString& kind, bool accept, const QString& text, int timeoutMs);
  Connection* showing(const QString& kind) const;
  bool answerWait(const QString& kind, bool accept, const QString& text, QString* error);
  /// The sentence about a dialog that is open in any window; empty without one.
  QString whatIsShown() const;
  QString whatIsWaitedFor() const;

  BrowserWindows& m_windows;
  MessageEndpoint& m_endpoint;
  /// The longest waiting first.
  QVector<Wait> m_waits;
  int m_swallowedAlerts = 0;
  /// By kind; "default" is the first content of a prompt's field.
  QHash<QString, QString> m_texts;
};

}  // namespace Corvex::Webhook
