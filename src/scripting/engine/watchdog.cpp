#include "scripting/engine/watchdog.h"

#include <chrono>

namespace Corvex::Scripting {

Watchdog::Watchdog(int milliseconds, const std::function<void()>& onTimeOver) {
  if (milliseconds <= 0) {
    return;
  }
  m_thread = std::thread([this, milliseconds, onTimeOver] {
    std::unique_lock<std::mutex> lock(m_mutex);
    if (!m_wake.wait_for(lock, std::chrono::milliseconds(milliseconds), [this] { return m_isCalledOff; })) {
      onTimeOver();
    }
  });
}

Watchdog::~Watchdog() {
  {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isCalledOff = true;
  }
  m_wake.notify_one();
  if (m_thread.joinable()) {
    m_thread.join();
  }
}

}  // namespace Corvex::Scripting
