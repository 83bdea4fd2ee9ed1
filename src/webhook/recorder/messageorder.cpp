#include "webhook/recorder/messageorder.h"

#include "wrappers/web/recording/eventpayload.h"

#include <algorithm>

namespace Corvex::Webhook {

void MessageOrder::add(const QString& message) {
  const QString head = message.section(QLatin1Char('&'), 0, 0);
  const qint64 stamp = WebWrapper::parseEvent(head).value(QStringLiteral("timestamp")).toLongLong();
  m_messages.insert({stamp, {message, QDeadlineTimer(m_patienceMs)}});
}

// One that came too late must not keep waiting those that it should have come before.
bool MessageOrder::isNextDue() const {
  return std::any_of(m_messages.begin(), m_messages.end(),
                     [](const auto& message) { return message.second.end.hasExpired(); });
}

QString MessageOrder::takeNext() {
  const QString text = m_messages.begin()->second.text;
  m_messages.erase(m_messages.begin());
  return text;
}

}  // namespace Corvex::Webhook
