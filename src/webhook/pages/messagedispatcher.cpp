#include "webhook/pages/messagedispatcher.h"

#include "corvexhook/inspector.h"
#include "webhook/endpoint/endpointpolicy.h"
#include "webhook/pages/browserwindows.h"
#include "webhook/pages/dialogs.h"
#include "webhook/protocol/log.h"
#include "wrappers/web/recording/eventlogger.h"

namespace Corvex::Webhook {

namespace {

const int drainIntervalMs = 1000;
const int greetingMs = 50;
const int drainTimeoutMs = 1000;

const char* const queueOfPage =
    "window.__corvex && window.__corvex.useSessionStorageForEvents === true ? "
    "__corvex__queueText(__corvex__getSessionStorageEvents()) : ''";

}  // namespace

MessageDispatcher::MessageDispatcher(MessageEndpoint& endpoint, BrowserWindows& windows, Dialogs& dialogs)
    : m_endpoint(endpoint), m_windows(windows), m_dialogs(dialogs) {
  connect(&endpoint, &MessageEndpoint::messageReceived, this, &MessageDispatcher::dispatch);
  connect(&endpoint, &MessageEndpoint::waitUnanswered, &dialogs, &Dialogs::noteWaitEnded);
  connect(&windows, &BrowserWindows::documentExpected, this, &MessageDispatcher::letIn);
  connect(&windows, &BrowserWindows::documentExpected, this, &MessageDispatcher::greetSoon);
  connect(&m_drainTimer, &QTimer::timeout, this, &MessageDispatcher::drainQueues);
  m_drainTimer.start(drainIntervalMs);
}

void MessageDispatcher::dispatch(const PageMessage& message) {
  switch (message.kind()) {
    case MessageKind::EventHandler:
    case MessageKind::WaitForConfirm:
    case MessageKind::WaitForPrompt:
      m_dialogs.noteMessage(message);
      break;
    case MessageKind::LogEvent:
      takeLogEvent(message);
      break;
    case MessageKind::DebugLog:
      qCDebug(webhookLog) << "page:" << message.value(QStringLiteral("text"));
      break;
    case MessageKind::HighlightWidget:
      Q_EMIT objectHovered(message.value(QStringLiteral("info")));
      break;
    case MessageKind::Unknown:
      qCDebug(webhookLog) << "a page sent an unknown message:" << message.text().left(200);
      break;
  }
}

void MessageDispatcher::takeLogEvent(const PageMessage& message) {
  if (m_logger) {
    m_logger->logEvent(message.text());
    return;
  }
  const QString event = message.value(QStringLiteral("event"));
  const QString name = message.value(QStringLiteral("name"));
  if (event == QLatin1String("addUnmatchedProperty")) {
    Inspector::self()->addUnmatchedProperty(name, message.value(QStringLiteral("property")));
  } else if (event == QLatin1String("removeUnmatchedProperties")) {
    Inspector::self()->removeUnmatchedProperties(name);
  }
}

void MessageDispatcher::drainQueues() {
  // Pages beside one that shows a dialog may be held with it.
  if (m_draining || !m_windows.whatIsShown().isEmpty()) {
    return;
  }
  m_draining = true;
  for (Connection* connection : m_windows.connections()) {
    if (connection->isAvailable() && !connection->isBusy()) {
      drain(*connection);
    }
  }
  m_draining = false;
}

void MessageDispatcher::drain(Connection& connection) {
  const auto answer = connection.evaluateJS(QString::fromLatin1(queueOfPage), drainTimeoutMs);
  if (answer.succeeded() && !answer.text.isEmpty()) {
    for (const PageMessage& message : PageMessage::fromSessionQueue(answer.text)) {
      dispatch(message);
    }
  }
}

// Pages that are recorded are asked early: only then they know which window they are, and miss nothing.
void MessageDispatcher::greetSoon() {
  if (m_logger) {
    QTimer::singleShot(greetingMs, this, &MessageDispatcher::drainQueues);
  }
}

void MessageDispatcher::letIn(const QString& url) {
  const QString origin = originOf(url);
  if (!origin.isEmpty() && !m_origins.contains(origin)) {
    m_origins << origin;
    m_endpoint.setAllowedOrigins(m_origins);
  }
}

}  // namespace Corvex::Webhook
