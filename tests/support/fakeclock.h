#pragma once

#include <functional>

#include "shared/wait.h"

namespace TestSupport {

/// Time that passes as fast as it is asked for, as long as this object lives.
class FakeClock : public Corvex::Clock {
public:
  FakeClock() { replace(this); }
  ~FakeClock() override { replace(nullptr); }

  qint64 now() const override { return nowMs; }
  void sleep(int milliseconds) override {
    nowMs += milliseconds;
    if (onSleep) {
      onSleep();
    }
  }

  qint64 nowMs = 0;
  /// What happens while time passes.
  std::function<void()> onSleep;
};

}  // namespace TestSupport
