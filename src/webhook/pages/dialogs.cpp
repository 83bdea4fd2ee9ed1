#include "webhook/pages/dialogs.h"

#include "corvexhook/inspector.h"
#include "shared/wait.h"
#include "webhook/endpoint/endpoint.h"
#include "webhook/pages/browserwindows.h"
#include "webhook/pages/dialogsentence.h"

#include <algorithm>

namespace Corvex::Webhook {

namespace {

const int attemptIntervalMs = 20;

const char* const promptDefault = "default";

}  // namespace

Dialogs::Dialogs(BrowserWindows& windows, MessageEndpoint& endpoint) : m_windows(windows), m_endpoint(endpoint) {
  connect(&windows, &BrowserWindows::dialogOpened, this, &Dialogs::noteDialog);
  // An alert is gone with the page that swallowed it.
  connect(&windows, &BrowserWindows::documentExpected, this, [this] { m_swallowedAlerts = 0; });
}

void Dialogs::noteDialog(const Dialog& dialog) {
  m_texts[dialog.kind] = dialog.text;
  if (dialog.kind == QLatin1String("prompt")) {
    m_texts[QLatin1String(promptDefault)] = dialog.defaultText;
  }
}

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
  const QString other = whatIsShown();
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
  QVector<Connection*> candidates = m_windows.connections();
  candidates.prepend(m_windows.current());
  for (Connection* connection : candidates) {
    const std::optional<Dialog> dialog = connection ? connection->openDialog() : std::nullopt;
    if (dialog && answeredAs(dialog->kind) == kind) {
      return connection;
    }
  }
  return nullptr;
}

QString Dialogs::lastPromptDefault() const { return lastText(QLatin1String(promptDefault)); }

QString Dialogs::whyNotAskPage(Connection& window) const {
  const QString why = m_windows.whyNotAsk(&window);
  return why.isEmpty() ? whatIsWaitedFor() : why;
}

QString Dialogs::whatIsShown() const {
  const QString shown = m_windows.whatIsShown();
  return shown.isEmpty() ? whatIsWaitedFor() : shown;
}

QString Dialogs::whatIsWaitedFor() const {
  if (m_waits.isEmpty()) {
    return QString();
  }
  const QString kind = m_waits.first().kind;
  return dialogSentence(QStringLiteral("page"), kind, m_texts.value(kind));
}

}  // namespace Corvex::Webhook
