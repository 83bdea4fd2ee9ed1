#include "webhook/dialogs.h"

#include "webhook/browserwindows.h"

#include <QElapsedTimer>

namespace Corvex::Webhook {

namespace {

const int attemptIntervalMs = 20;

struct TextFunction {
  const char* kind;
  const char* function;
};

const TextFunction textFunctions[] = {
    {"alert", "__corvex__lastAlertText"},
    {"confirm", "__corvex__lastConfirmText"},
    {"prompt", "__corvex__lastPromptText"},
};

}  // namespace

Dialogs::Dialogs(BrowserWindows& windows, const Sleep& sleep) : m_windows(windows), m_sleep(sleep) {}

QString Dialogs::closeAlert(int timeoutMs) { return answer(QStringLiteral("alert"), true, QString(), timeoutMs); }

QString Dialogs::closeConfirm(bool accept, int timeoutMs) {
  return answer(QStringLiteral("confirm"), accept, QString(), timeoutMs);
}

QString Dialogs::closePrompt(const QString& text, int timeoutMs) {
  return answer(QStringLiteral("prompt"), !text.isNull(), text, timeoutMs);
}

QString Dialogs::answer(const QString& kind, bool accept, const QString& text, int timeoutMs) {
  QElapsedTimer timer;
  timer.start();
  Connection* connection = showing(kind);
  while (!connection && timer.elapsed() < timeoutMs && m_windows.current()) {
    m_sleep(attemptIntervalMs);
    connection = showing(kind);
  }
  if (connection) {
    return connection->answerDialog(accept, text);
  }
  const QString other = obstacle();
  return QStringLiteral("No %1 opened within %2 ms.").arg(kind).arg(timeoutMs) +
         (other.isEmpty() ? QString() : QLatin1Char(' ') + other);
}

Connection* Dialogs::showing(const QString& kind) const {
  for (Connection* connection : m_windows.connections()) {
    const std::optional<Dialog> dialog = connection->openDialog();
    if (dialog && dialog->kind == kind) {
      return connection;
    }
  }
  return nullptr;
}

FunctionCallResult<QString> Dialogs::lastText(const QString& kind) const {
  const Connection* current = m_windows.current();
  if (current && !current->lastDialog(kind).kind.isEmpty()) {
    return FunctionCallResult<QString>::success(current->lastDialog(kind).text);
  }
  for (const TextFunction& row : textFunctions) {
    if (kind == QLatin1String(row.kind)) {
      return fromPage(QLatin1String(row.function));
    }
  }
  return {};
}

FunctionCallResult<QString> Dialogs::lastPromptDefault() const {
  const Connection* current = m_windows.current();
  if (current && !current->lastDialog(QStringLiteral("prompt")).kind.isEmpty()) {
    return FunctionCallResult<QString>::success(current->lastDialog(QStringLiteral("prompt")).defaultText);
  }
  return fromPage(QStringLiteral("__corvex__lastPromptDefault"));
}

FunctionCallResult<QString> Dialogs::fromPage(const QString& function) const {
  Connection* current = m_windows.current();
  if (!current) {
    return {};
  }
  const WebWrapper::JavaScriptAnswer answer = current->evaluateJS(function + QStringLiteral("()"), 0);
  return answer.succeeded() ? FunctionCallResult<QString>::success(answer.text)
                            : FunctionCallResult<QString>::failure(answer.text);
}

QString Dialogs::obstacle() const {
  const Connection* current = m_windows.current();
  const std::optional<Dialog> dialog = current ? current->openDialog() : std::nullopt;
  return dialog ? QStringLiteral("The page shows a dialog (%1: '%2'). Answer it with close%3.")
                      .arg(dialog->kind, dialog->text, dialog->kind.left(1).toUpper() + dialog->kind.mid(1))
                : QString();
}

}  // namespace Corvex::Webhook
