#pragma once

#include <QtGlobal>

namespace Corvex::Webhook {

/// What the endpoint takes at most. Bytes and milliseconds.
struct EndpointLimits {
  qint64 body = 1024 * 1024;              ///< Of one request.
  qint64 undelivered = 64 * 1024 * 1024;  ///< In memory, of all messages that are not delivered yet.
  int requests = 64;                      ///< In flight, waits that are held open included.
  int connections = 256;                  ///< A further one takes the place of another, see Exchanges.
  int requestTime = 10 * 1000;            ///< For a whole request to arrive, or the first one of a connection to begin.
  int idleTime = 330 * 1000;  ///< Between requests. Longer than browsers keep a connection, so that they end it.
  int waitTime = 60 * 1000;   ///< For the driver's answer to a wait.
};

}  // namespace Corvex::Webhook
