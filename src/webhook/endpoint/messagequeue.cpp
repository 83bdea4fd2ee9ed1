#include "webhook/endpoint/messagequeue.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace Corvex::Webhook {

MessageQueue::Taken MessageQueue::put(const PageMessage& message) {
  const qint64 bytes = message.bytes();
  const std::lock_guard<std::mutex> lock(m_mutex);
  if (m_bytes + bytes > m_limit) {
    return Taken::No;
  }
  const bool first = m_messages.empty();
  m_bytes += bytes;
  m_messages.push_back(message);
  return first ? Taken::YesAsFirst : Taken::Yes;
}

std::deque<PageMessage> MessageQueue::takeAll() {
  const std::lock_guard<std::mutex> lock(m_mutex);
  return std::exchange(m_messages, {});
}

void MessageQueue::noteDelivered(const PageMessage& message) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  m_bytes -= message.bytes();
}

void sortByStamp(std::deque<PageMessage>& messages) {
  std::vector<std::pair<qint64, PageMessage>> keyed;
  keyed.reserve(messages.size());
  qint64 latest = std::numeric_limits<qint64>::min();
  for (PageMessage& message : messages) {
    const qint64 key = message.stamp().value_or(latest);
    latest = std::max(latest, key);
    keyed.emplace_back(key, std::move(message));
  }
  std::stable_sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  std::transform(keyed.begin(), keyed.end(), messages.begin(), [](auto& pair) { return std::move(pair.second); });
}

}  // namespace Corvex::Webhook
