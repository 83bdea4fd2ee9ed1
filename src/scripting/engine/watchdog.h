#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace Corvex::Scripting {

/// Calls a function from a thread of its own unless it is destroyed before the time is over. With 0 milliseconds it
/// never does.
class Watchdog {
public:
  Watchdog(int milliseconds, const std::function<void()>& onTimeOver);
  ~Watchdog();

  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;

private:
  std::mutex m_mutex;
  std::condition_variable m_wake;
  bool m_isCalledOff = false;
  std::thread m_thread;
};

}  // namespace Corvex::Scripting
