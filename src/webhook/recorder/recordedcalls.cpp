#include "webhook/recorder/recordedcalls.h"

namespace Corvex::Webhook {

void RecordedCalls::append(const EventData& call, const QTime* time) {
  m_calls.push_back({call, time ? *time : QTime()});
  m_output.write(call);
}

EventData RecordedCalls::last() const {
  return m_calls.empty() ? EventData(nullptr, QString(), ObjectList()) : m_calls.back().data;
}

void RecordedCalls::takeBackLast() {
  if (!m_calls.empty()) {
    m_calls.pop_back();
    m_output.takeBackLast();
  }
}

}  // namespace Corvex::Webhook
