#include "webhook/endpoint/exchanges.h"

#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <algorithm>

namespace Corvex::Webhook {

namespace {

constexpr int roomForTheDropped = 64;  // until the library has seen that they are gone

bool hasReceivedBytes(int socket) {
  tcp_info info = {};
  socklen_t size = sizeof info;
  // The end of a connection counts as a byte, too.
  return ::getsockopt(socket, IPPROTO_TCP, TCP_INFO, &info, &size) == 0 && info.tcpi_bytes_received > 1;
}

}  // namespace

bool Exchange::isCutShort() const { return stage == Reading || (stage == New && hasReceivedBytes(socket)); }

unsigned Exchanges::mostOpen() const { return unsigned(m_limits.connections + roomForTheDropped); }

Exchange& Exchanges::open(MHD_Connection* connection, int socket) {
  Exchange& exchange = m_all.emplace_back(Exchange{connection, socket});
  exchange.place = std::prev(m_all.end());
  setStage(exchange, Exchange::New);
  makeRoom();
  return exchange;
}

void Exchanges::setStage(Exchange& exchange, Exchange::Stage stage) const {
  exchange.stage = stage;
  exchange.deadline = stage == Exchange::Held   ? QDeadlineTimer(QDeadlineTimer::Forever)
                      : stage == Exchange::Idle ? QDeadlineTimer(m_limits.idleTime)
                                                : QDeadlineTimer(m_limits.requestTime);
}

QDeadlineTimer Exchanges::nextDeadline() const {
  QDeadlineTimer next(QDeadlineTimer::Forever);
  for (const Exchange& exchange : m_all) {
    next = std::min(next, exchange.deadline);
  }
  return next;
}

bool Exchanges::oweReplies() const {
  return std::any_of(m_all.begin(), m_all.end(),
                     [](const Exchange& exchange) { return exchange.stage == Exchange::Replying; });
}

void Exchanges::dropLate() {
  for (Exchange& exchange : m_all) {
    if (exchange.deadline.hasExpired()) {
      drop(exchange);
    }
  }
}

void Exchanges::makeRoom() {
  const auto count =
      std::count_if(m_all.begin(), m_all.end(), [](const Exchange& exchange) { return !exchange.dropped; });
  if (count <= m_limits.connections) {
    return;
  }
  const auto oldest = [this](bool knowsSecret) {
    return std::find_if(m_all.begin(), m_all.end(), [knowsSecret](const Exchange& exchange) {
      return !exchange.dropped && !exchange.inFlight && exchange.knowsSecret == knowsSecret;
    });
  };
  const auto stranger = oldest(false);
  const auto victim = stranger == m_all.end() ? oldest(true) : stranger;
  if (victim != m_all.end()) {
    drop(*victim);
  }
}

void Exchanges::drop(Exchange& exchange) {
  ::shutdown(exchange.socket, SHUT_RDWR);
  exchange.dropped = true;
  exchange.deadline = QDeadlineTimer(QDeadlineTimer::Forever);
}

}  // namespace Corvex::Webhook
