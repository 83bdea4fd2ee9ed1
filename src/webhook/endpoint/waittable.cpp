#include "webhook/endpoint/waittable.h"

#include <algorithm>
#include <utility>

namespace Corvex::Webhook {

quint64 WaitTable::open(const QDeadlineTimer& deadline) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  m_open.emplace(++m_lastId, deadline);
  return m_lastId;
}

bool WaitTable::answer(quint64 id, const QByteArray& reply) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  if (m_open.erase(id) == 0) {
    return false;
  }
  m_ended.push_back({id, true, reply});
  return true;
}

void WaitTable::end(quint64 id) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  if (m_open.erase(id) != 0) {
    m_ended.push_back({id, false, {}});
  }
}

void WaitTable::endAll() {
  const std::lock_guard<std::mutex> lock(m_mutex);
  for (const auto& wait : m_open) {
    m_ended.push_back({wait.first, false, {}});
  }
  m_open.clear();
}

std::vector<WaitTable::Ended> WaitTable::takeEnded() {
  const std::lock_guard<std::mutex> lock(m_mutex);
  for (auto wait = m_open.begin(); wait != m_open.end();) {
    if (wait->second.hasExpired()) {
      m_ended.push_back({wait->first, false, {}});
      wait = m_open.erase(wait);
    } else {
      ++wait;
    }
  }
  return std::exchange(m_ended, {});
}

QDeadlineTimer WaitTable::nextDeadline() const {
  const std::lock_guard<std::mutex> lock(m_mutex);
  QDeadlineTimer next(QDeadlineTimer::Forever);
  for (const auto& wait : m_open) {
    next = std::min(next, wait.second);
  }
  return next;
}

}  // namespace Corvex::Webhook
