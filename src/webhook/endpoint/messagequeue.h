#pragma once

#include "webhook/endpoint/pagemessage.h"

#include <deque>
#include <mutex>

namespace Corvex::Webhook {

/// Where messages wait for the driver's thread, in the order of their arrival. It bounds what they take of the memory
/// until they are delivered. All calls may come from any thread.
class MessageQueue {
public:
  explicit MessageQueue(qint64 limit) : m_limit(limit) {}

  enum class Taken { No, Yes, YesAsFirst };

  /// Puts a message at the end. `No` if it does not fit beside those that are not delivered; `YesAsFirst` if none
  /// waited, so that whoever takes them has to be told.
  Taken put(const PageMessage& message);

  /// Takes all out. They count until each is told to be delivered.
  std::deque<PageMessage> takeAll();
  void noteDelivered(const PageMessage& message);

private:
  std::mutex m_mutex;
  const qint64 m_limit;
  qint64 m_bytes = 0;
  std::deque<PageMessage> m_messages;
};

/// Brings messages into the order in which their pages wrote them. Equal stamps stay in the order given; a message
/// without a stamp stays after all that stand before it.
void sortByStamp(std::deque<PageMessage>& messages);

}  // namespace Corvex::Webhook
