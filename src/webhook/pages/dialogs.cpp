#include "webhook/pages/dialogs.h"

#include "corvexhook/inspector.h"
#include "shared/wait.h"
#include "webhook/endpoint/endpoint.h"
#include "webhook/pages/browserwindows.h"

#include <algorithm>

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

/// The question whether to leave a page is answered as a confirm is.
QString answeredAs(const QString& kind) {
  return kind == QLatin1String("beforeunload") ? QStringLiteral("confirm") : kind;
}

}  // namespace

Dialogs::Dialogs(BrowserWindows& windows, MessageEndpoint& endpoint) : m_windows(windows), m_endpoint(endpoint) {}

void Dialogs::noteMessage(const PageMessage& message) {
  if (message.wantsReply()) {
    const bool isConfirm = message.kind() == MessageKind::WaitForConfirm;
    m_waits.append({isConfirm ? QStringLiteral("confirm") : QStringLiteral("prompt"), message.waitId()});
    return;
  }
  if (message.value(QStringLiteral("name")) != QLatin1String("DialogText")) {
    return;
  }
  // A swallowed alert is there once its text is.
  const QString kind = message.value(QStringLiteral("kind"));
  m_texts[kind] = message.value(QStringLiteral("text"));
  if (kind == QLatin1String("alert")) {
    ++m_swallowedAlerts;
  }
}

void Dialogs::noteWaitEnded(quint64 waitId) {
  const auto ended = [waitId](const Wait& wait) { return wait.id == waitId; };
  m_waits.erase(std::remove_if(m_waits.begin(), m_waits.end(), ended), m_waits.end());
}

QString Dialogs::closeAlert(int timeoutMs) { return answer(QStringLiteral("alert"), true, QString(), timeoutMs); }

QString Dialogs::closeConfirm(bool accept, int timeoutMs) {
  return answer(QStringLiteral("confirm"), accept, QString(), timeoutMs);
}

QString Dialogs::closePrompt(const QString& text, int timeoutMs) {
  return answer(QStringLiteral("prompt"), !text.isNull(), text, timeoutMs);
}

QString Dialogs::answer(const QString& kind, bool accept, const QString& text, int timeoutMs) {
  QString error;
  bool isAnswered = false;
  poll(timeoutMs, attemptIntervalMs, [&] {
    isAnswered = tryAnswer(kind, accept, text, &error);
    return isAnswered || !m_windows.current() || !Inspector::self()->whyNotGoOn().isEmpty();
  });
  if (isAnswered) {
    return error;
  }
  const QString other = whyNotAskPage();
  return QStringLiteral("No %1 opened within %2 ms.").arg(kind).arg(timeoutMs) +
         (other.isEmpty() ? QString() : QLatin1Char(' ') + other);
}

bool Dialogs::tryAnswer(const QString& kind, bool accept, const QString& text, QString* error) {
  if (Connection* connection = showing(kind)) {
    *error = connection->answerDialog(accept, text);
    return true;
  }
  if (kind == QLatin1String("alert") && m_swallowedAlerts > 0) {
    --m_swallowedAlerts;
    return true;
  }
  return answerWait(kind, accept, text, error);
}

bool Dialogs::answerWait(const QString& kind, bool accept, const QString& text, QString* error) {
  const auto wait =
      std::find_if(m_waits.begin(), m_waits.end(), [&kind](const Wait& each) { return each.kind == kind; });
  if (wait == m_waits.end()) {
    return false;
  }
  const QString reply = kind == QLatin1String("confirm") ? (accept ? QStringLiteral("true") : QStringLiteral("false"))
                        : accept                         ? QStringLiteral("__corvex__promptResult: ") + text
                                                         : QStringLiteral("__corvex__promptCancelled");
  const quint64 id = wait->id;
  m_waits.erase(wait);
  if (!m_endpoint.answerWait(id, reply)) {
    *error = QStringLiteral("The page did not wait any more for the answer to its %1.").arg(kind);
  }
  return true;
}

Connection* Dialogs::showing(const QString& kind) const {
  for (Connection* connection : m_windows.connections()) {
    const std::optional<Dialog> dialog = connection->openDialog();
    if (dialog && answeredAs(dialog->kind) == kind) {
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
  if (m_texts.contains(kind)) {
    return FunctionCallResult<QString>::success(m_texts.value(kind));
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
  return m_texts.contains(QStringLiteral("default"))
             ? FunctionCallResult<QString>::success(m_texts.value(QStringLiteral("default")))
             : fromPage(QStringLiteral("__corvex__lastPromptDefault"));
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

QString Dialogs::whyNotAskPage() const {
  const Connection* current = m_windows.current();
  const std::optional<Dialog> dialog = current ? current->openDialog() : std::nullopt;
  if (!dialog && m_waits.isEmpty()) {
    return QString();
  }
  const QString kind = dialog ? dialog->kind : m_waits.first().kind;
  const QString text = dialog ? dialog->text : m_texts.value(kind);
  return QStringLiteral("The page shows a dialog (%1: '%2'). Answer it with close%3.")
      .arg(kind, text, answeredAs(kind).left(1).toUpper() + answeredAs(kind).mid(1));
}

}  // namespace Corvex::Webhook
