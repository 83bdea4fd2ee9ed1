#pragma once

#include "corvexhook/recorder.h"

#include <QString>

#include <vector>

namespace Corvex::Webhook {

/// Takes what is recorded at the moment when it is.
class RecordingOutput {
public:
  virtual ~RecordingOutput() = default;

  virtual void write(const EventData& call) = 0;
  /// What was written last is void.
  virtual void takeBackLast() = 0;
};

/// The calls of a recording in their order, each with its time.
class RecordedCalls : public Recorder {
public:
  struct Call {
    EventData data;
    /// Null for a call that has no time of its own.
    QTime time;
  };

  /// Borrows the output.
  explicit RecordedCalls(RecordingOutput& output) : m_output(output) {}

  void append(const EventData& call, const QTime* time) override;
  EventData last() const override;
  void takeBackLast() override;

  const std::vector<Call>& calls() const { return m_calls; }

private:
  RecordingOutput& m_output;
  std::vector<Call> m_calls;
};

}  // namespace Corvex::Webhook
