#pragma once

#include "corvexhook/method.h"

#include <QTime>

namespace Corvex {

/// Keeps the script calls that a recording is made of, in their order.
class Recorder {
public:
  virtual ~Recorder() = default;

  /// `time` is null for a call that has no time of its own.
  virtual void append(const EventData& call, const QTime* time) = 0;
  /// The call that was appended last and not taken back; without one, an event of no kind.
  virtual EventData last() const = 0;
  virtual void takeBackLast() = 0;
};

}  // namespace Corvex
