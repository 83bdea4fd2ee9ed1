#pragma once

#include "shared/export.h"

#include <QDeadlineTimer>

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

/// The one place of the program that waits for the browser. Returns at once if `pending` is complete; otherwise events
/// of this thread are served until it is, or until `deadline` is over.
///
/// Any code may run in the meantime, other waits included, so the caller keeps `pending` alive and looks again at
/// whatever else it uses afterwards. Waits nest: the inner one ends first, and never later than the outer one's
/// deadline.
CORVEX_EXPORT WaitResult waitFor(Pending& pending, const QDeadlineTimer& deadline);

/// The milliseconds that a wait of `timeoutMs` would be given if it began now: less than asked inside another wait.
CORVEX_EXPORT int grantedTime(int timeoutMs);

/// Lets the milliseconds pass while events of this thread are served, so that other work can run meanwhile.
CORVEX_EXPORT void gentleSleep(int milliseconds);

}  // namespace Corvex
