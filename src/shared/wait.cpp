#include "shared/wait.h"

#include <QEventLoop>
#include <QTimer>
#include <algorithm>

namespace Corvex {

namespace {

thread_local const QDeadlineTimer* innermostDeadline = nullptr;

QDeadlineTimer cappedByOuterWait(const QDeadlineTimer& deadline) {
  return innermostDeadline ? std::min(deadline, *innermostDeadline) : deadline;
}

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

void gentleSleep(int milliseconds) {
  QEventLoop loop;
  QTimer timer;
  timer.setSingleShot(true);
  timer.setTimerType(Qt::PreciseTimer);
  QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
  timer.start(milliseconds);
  loop.exec();
}

}  // namespace Corvex
