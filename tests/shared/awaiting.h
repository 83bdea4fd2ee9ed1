#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "shared/wait.h"

/// Runs `trigger` and serves events until the signal came; false when it did not within 10 s.
template <typename Sender, typename Signal>
bool comesAfter(Sender* sender, Signal signal, const std::function<void()>& trigger) {
  const auto seen = std::make_shared<Corvex::Pending>();
  const auto connection = QObject::connect(sender, signal, sender, [seen] { seen->complete(); });
  trigger();
  const auto result = Corvex::waitFor(*seen, QDeadlineTimer(10000));
  QObject::disconnect(connection);
  return result == Corvex::WaitResult::Complete;
}

template <typename Sender, typename Signal>
bool comes(Sender* sender, Signal signal) {
  return comesAfter(sender, signal, [] {});
}
