#include "shared/wait.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <algorithm>

namespace Corvex {

namespace {

thread_local const QDeadlineTimer* innermostDeadline = nullptr;

QDeadlineTimer cappedByOuterWait(const QDeadlineTimer& deadline) {
  return innermostDeadline ? std::min(deadline, *innermostDeadline) : deadline;
}

class MachineClock : public Clock {
public:
  MachineClock() { m_timer.start(); }

  qint64 now() const override { return m_timer.elapsed(); }

  void sleep(int milliseconds) override {
    Pending never;
    waitFor(never, QDeadlineTimer(milliseconds, Qt::PreciseTimer));
  }

private:
  QElapsedTimer m_timer;
};

Clock* replacement = nullptr;

}  // namespace

class Waiter {
public:
  Waiter(Pending& pending, const QDeadlineTimer& deadline)
      : m_pending(pending),
        m_outerLoop(pending.m_waiting),
        m_deadline(cappedByOuterWait(deadline)),
        m_outerDeadline(innermostDeadline) {
    m_pending.m_waiting = &m_loop;
    innermostDeadline = &m_deadline;
  }

  ~Waiter() {
    m_pending.m_waiting = m_outerLoop;
    if (m_outerLoop && m_pending.isComplete()) {
      m_outerLoop->quit();
    }
    innermostDeadline = m_outerDeadline;
  }

  WaitResult run() {
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &m_loop, &QEventLoop::quit);
    if (!m_deadline.isForever()) {
      timer.start(int(std::clamp<qint64>(m_deadline.remainingTime(), 0, INT_MAX)));
    }
    m_loop.exec();
    if (m_pending.isComplete()) {
      return WaitResult::Complete;
    }
    return timer.isActive() ? WaitResult::Interrupted : WaitResult::TimeOver;
  }

private:
  QEventLoop m_loop;
  Pending& m_pending;
  QEventLoop* const m_outerLoop;  ///< Of an outer wait for the same thing.
  const QDeadlineTimer m_deadline;
  const QDeadlineTimer* const m_outerDeadline;
};

void Pending::complete() {
  m_complete = true;
  if (m_waiting) {
    m_waiting->quit();
  }
}

WaitResult waitFor(Pending& pending, const QDeadlineTimer& deadline) {
  if (pending.isComplete()) {
    return WaitResult::Complete;
  }
  return Waiter(pending, deadline).run();
}

int grantedTime(int timeoutMs) {
  if (!innermostDeadline || innermostDeadline->isForever()) {
    return timeoutMs;
  }
  return int(std::min<qint64>(timeoutMs, innermostDeadline->remainingTime()));
}

void gentleSleep(int milliseconds) { Clock::current().sleep(milliseconds); }

bool poll(int timeoutMs, int intervalMs, const std::function<bool()>& attempt) {
  Clock& clock = Clock::current();
  const qint64 end = clock.now() + grantedTime(timeoutMs);
  for (;;) {
    if (attempt()) {
      return true;
    }
    const qint64 left = end - clock.now();
    if (left <= 0) {
      return false;
    }
    clock.sleep(int(std::min<qint64>(left, intervalMs)));
  }
}

Clock::~Clock() = default;

Clock& Clock::current() {
  static MachineClock machine;
  return replacement ? *replacement : machine;
}

void Clock::replace(Clock* clock) { replacement = clock; }

}  // namespace Corvex
