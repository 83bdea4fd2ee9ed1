#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <map>
#include <mutex>
#include <vector>

namespace Corvex::Webhook {

/// The waits that pages stand in, by number. Each ends once: by an answer, its deadline, or because its page is gone.
/// All calls may come from any thread.
class WaitTable {
public:
  struct Ended {
    quint64 id;
    bool answered;
    QByteArray reply;
  };

  /// The number of a new wait, never 0.
  quint64 open(const QDeadlineTimer& deadline);

  /// False if that wait has ended, and the reply reaches nobody.
  bool answer(quint64 id, const QByteArray& reply);

  /// Ends a wait without an answer, or all of them.
  void end(quint64 id);
  void endAll();

  /// Those that ended since the last call, the ones whose deadline is over included.
  std::vector<Ended> takeEnded();

  /// The earliest deadline of those that are open.
  QDeadlineTimer nextDeadline() const;

private:
  mutable std::mutex m_mutex;
  quint64 m_lastId = 0;
  std::map<quint64, QDeadlineTimer> m_open;
  std::vector<Ended> m_ended;
};

}  // namespace Corvex::Webhook
