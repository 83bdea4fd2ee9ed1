#pragma once

#include "shared/export.h"

#include <QDeadlineTimer>

#include <functional>

class QEventLoop;

namespace Corvex {

/// Something that is complete or not yet: an answer, a loaded page, an opened connection. It completes once and stays
/// so. Whoever completes it must be sure to do so on every end, a lost connection included.
class CORVEX_EXPORT Pending {
public:
  Pending() = default;
  virtual ~Pending() = default;
  Pending(const Pending&) = delete;
  Pending& operator=(const Pending&) = delete;

  bool isComplete() const { return m_complete; }

  /// Completes it and wakes the one that waits, if any. Runs no other code; a second call changes nothing.
  void complete();

private:
  friend class Waiter;

  QEventLoop* m_waiting = nullptr;
  bool m_complete = false;
};

enum class WaitResult {
  Complete,
  TimeOver,
  Interrupted,  ///< The program's event loop was told to end.
};

/// The one place of the program that waits. Returns at once if `pending` is complete; otherwise events of this thread
/// are served until it is, or until `deadline` is over.
///
/// Any code may run in the meantime, other waits included, so the caller keeps `pending` alive and looks again at
/// whatever else it uses afterwards. Waits nest: the inner one ends first, and never later than the outer one's
/// deadline.
CORVEX_EXPORT WaitResult waitFor(Pending& pending, const QDeadlineTimer& deadline);

/// The milliseconds that a wait of `timeoutMs` would be given if it began now: less than asked inside another wait.
CORVEX_EXPORT int grantedTime(int timeoutMs);

/// Lets the milliseconds pass while events of this thread are served, so that other work can run meanwhile. Inside a
/// wait it ends with that wait's deadline.
CORVEX_EXPORT void gentleSleep(int milliseconds);

/// Calls `attempt` at once and then every `intervalMs` until it answers true, which is then the result, or until
/// `timeoutMs` are over. Events are served between the attempts; the last one comes when the time is over.
CORVEX_EXPORT bool poll(int timeoutMs, int intervalMs, const std::function<bool()>& attempt);

/// The time that `gentleSleep` and `poll` go by: the machine's, unless a test puts another one in its place.
class CORVEX_EXPORT Clock {
public:
  virtual ~Clock();
  /// Milliseconds, never going back.
  virtual qint64 now() const = 0;
  virtual void sleep(int milliseconds) = 0;

  /// The clock in use. The new one stays its owner's; null puts the machine's back.
  static Clock& current();
  static void replace(Clock* clock);
};

}  // namespace Corvex
