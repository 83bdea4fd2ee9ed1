#pragma once

#include "webhook/endpoint/endpointlimits.h"

#include <QByteArray>
#include <QDeadlineTimer>

#include <microhttpd.h>
#include <list>

namespace Corvex::Webhook {

/// One connection, and the request that stands on it.
struct Exchange {
  enum Stage { New, Reading, Replying, Held, Idle };

  MHD_Connection* connection;
  int socket;
  Stage stage = New;
  QDeadlineTimer deadline = QDeadlineTimer(QDeadlineTimer::Forever);
  QByteArray target = {};
  QByteArray method = {};
  QByteArray origin = {};
  QByteArray body = {};
  bool inFlight = false;
  bool knowsSecret = false;
  bool dropped = false;
  quint64 waitId = 0;
  std::list<Exchange>::iterator place = {};

  /// Whether its end came before a request that had begun was read.
  bool isCutShort() const;
};

/// The connections of the endpoint, and how long each may take. An exchange stays where it is until it is closed.
///
/// A connection that has not yet brought a request that was let in is anybody's. When there are too many, the oldest of
/// those goes, so that no number of them keeps a page waiting.
class Exchanges {
public:
  explicit Exchanges(const EndpointLimits& limits) : m_limits(limits) {}

  /// How many the library may have open, those that were dropped and are still with it included.
  unsigned mostOpen() const;
  bool areFull() const { return m_all.size() >= mostOpen(); }

  Exchange& open(MHD_Connection* connection, int socket);
  void close(const Exchange& exchange) { m_all.erase(exchange.place); }
  /// The stage's time begins.
  void setStage(Exchange& exchange, Exchange::Stage stage) const;

  QDeadlineTimer nextDeadline() const;
  void dropLate();
  bool oweReplies() const;

  std::list<Exchange>::iterator begin() { return m_all.begin(); }
  std::list<Exchange>::iterator end() { return m_all.end(); }

private:
  void makeRoom();
  static void drop(Exchange& exchange);

  const EndpointLimits m_limits;
  std::list<Exchange> m_all;
};

}  // namespace Corvex::Webhook
