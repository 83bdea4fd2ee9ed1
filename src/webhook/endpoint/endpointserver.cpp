#include "webhook/endpoint/endpointserver.h"

#include "webhook/endpoint/endpointreply.h"
#include "webhook/protocol/log.h"

#include <arpa/inet.h>
#include <poll.h>
#include <pthread.h>
#include <signal.h>
#include <sys/eventfd.h>
#include <sys/socket.h>

#include <QRandomGenerator>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace Corvex::Webhook {

namespace {

constexpr int loggedTargetLength = 100;
constexpr int mostRefusalsTold = 20;

constexpr int flushTime = 500;
constexpr std::size_t connectionMemory = 128 * 1024;

sockaddr_in loopbackAddress() {
  sockaddr_in address = {};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

/// Signals are the business of the thread that installed their handlers.
void blockSignals() {
  sigset_t all;
  sigfillset(&all);
  pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

/// 128 bits that nobody can guess.
QByteArray newSecret() {
  std::array<quint32, 4> words;
  QRandomGenerator::system()->fillRange(words.data(), qsizetype(words.size()));
  return QByteArray(reinterpret_cast<const char*>(words.data()), sizeof words).toHex();
}

int pollTime(const QDeadlineTimer& deadline) {
  const qint64 remaining = deadline.remainingTime();
  return remaining < 0 ? -1 : int(std::min<qint64>(remaining + 1, 60 * 60 * 1000));
}

}  // namespace

EndpointServer::EndpointServer(const EndpointLimits& limits, Receiver receiver)
    : m_limits(limits), m_receiver(std::move(receiver)), m_messages(limits.undelivered), m_exchanges(limits) {}

EndpointServer::~EndpointServer() { stop(); }

bool EndpointServer::start(QString* error) {
  if (m_thread.joinable()) {
    return true;
  }
  const sockaddr_in address = loopbackAddress();
  m_wakeHandle = FileDescriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
  errno = 0;
  m_daemon = MHD_start_daemon(MHD_USE_EPOLL | MHD_ALLOW_SUSPEND_RESUME, 0, nullptr, nullptr, &handle, this,
                              MHD_OPTION_SOCK_ADDR, &address,                                           //
                              MHD_OPTION_CONNECTION_LIMIT, unsigned(m_exchanges.mostOpen()),            //
                              MHD_OPTION_CONNECTION_MEMORY_LIMIT, connectionMemory,                     //
                              MHD_OPTION_URI_LOG_CALLBACK, &noteTarget, static_cast<void*>(this),       //
                              MHD_OPTION_NOTIFY_COMPLETED, &noteCompleted, static_cast<void*>(this),    //
                              MHD_OPTION_NOTIFY_CONNECTION, &noteConnection, static_cast<void*>(this),  //
                              MHD_OPTION_SIGPIPE_HANDLED_BY_APP, 1, MHD_OPTION_END);
  if (!m_daemon || !m_wakeHandle.isValid()) {
    *error = QString::fromLocal8Bit(std::strerror(errno));
    if (m_daemon) {
      MHD_stop_daemon(m_daemon);
    }
    m_daemon = nullptr;
    return false;
  }
  m_pollHandle = MHD_get_daemon_info(m_daemon, MHD_DAEMON_INFO_EPOLL_FD)->epoll_fd;
  const QByteArray port = QByteArray::number(MHD_get_daemon_info(m_daemon, MHD_DAEMON_INFO_BIND_PORT)->port);
  const QByteArray secret = newSecret();
  m_place = port + '/' + secret;
  m_own = {"127.0.0.1:" + port, '/' + secret + '/'};
  m_stopping = false;
  m_thread = std::thread([this] { run(); });
  return true;
}

void EndpointServer::stop() {
  if (!m_thread.joinable()) {
    return;
  }
  m_stopping = true;
  wake();
  m_thread.join();
  m_daemon = nullptr;
}

bool EndpointServer::answerWait(quint64 id, const QByteArray& reply) {
  const bool taken = m_waits.answer(id, reply);
  if (taken) {
    wake();
  }
  return taken;
}

void EndpointServer::wake() { ::eventfd_write(m_wakeHandle.get(), 1); }

void EndpointServer::run() {
  blockSignals();
  while (!m_stopping) {
    pollOnce(std::min(m_waits.nextDeadline(), m_exchanges.nextDeadline()));
    endWaits();
    m_exchanges.dropLate();
  }
  m_waits.endAll();
  endWaits();
  const QDeadlineTimer flushed(flushTime);
  while (m_exchanges.oweReplies() && !flushed.hasExpired()) {
    pollOnce(flushed);
  }
  MHD_stop_daemon(m_daemon);
}

void EndpointServer::pollOnce(const QDeadlineTimer& limit) {
  MHD_UNSIGNED_LONG_LONG due = 0;
  const bool isDue = MHD_get_timeout(m_daemon, &due) == MHD_YES;
  const bool atOnce = (isDue && due == 0) || std::exchange(m_hasRoomAgain, false);
  const int time = atOnce ? 0 : pollTime(isDue ? std::min(limit, QDeadlineTimer(qint64(due))) : limit);

  std::vector<pollfd> handles{{m_pollHandle, POLLIN, 0}, {m_wakeHandle.get(), POLLIN, 0}};
  std::vector<Exchange*> watched;
  for (Exchange& exchange : m_exchanges) {
    if (exchange.stage != Exchange::Replying) {
      handles.push_back({exchange.socket, POLLRDHUP, 0});
      watched.push_back(&exchange);
    }
  }
  ::poll(handles.data(), nfds_t(handles.size()), time);

  eventfd_t wakes = 0;
  ::eventfd_read(m_wakeHandle.get(), &wakes);
  for (std::size_t i = 0; i < watched.size(); ++i) {
    if (handles[i + 2].revents != 0) {
      noteClientGone(*watched[i]);
    }
  }
  MHD_run(m_daemon);
}

void EndpointServer::noteClientGone(Exchange& exchange) {
  char next = 0;
  if (exchange.stage == Exchange::Held) {
    m_waits.end(exchange.waitId);
  } else if (::recv(exchange.socket, &next, 1, MSG_PEEK | MSG_DONTWAIT) <= 0) {
    // The library misses an end that came together with the bytes before it; this one it sees.
    ::shutdown(exchange.socket, SHUT_RDWR);
  }
}

void EndpointServer::endWaits() {
  const std::vector<WaitTable::Ended> all = m_waits.takeEnded();
  for (const WaitTable::Ended& ended : all) {
    const auto held = m_held.find(ended.id);
    if (held == m_held.end()) {
      continue;
    }
    Exchange& exchange = *held->second;
    m_held.erase(held);
    m_exchanges.setStage(exchange, Exchange::Replying);
    sendReply(exchange.connection, MHD_HTTP_OK, ended.reply, exchange.origin);
    MHD_resume_connection(exchange.connection);
    if (!ended.answered) {
      m_receiver.waitUnanswered(ended.id);
    }
  }
  // Without this the library does not see that they are resumed, and its own timeout says nothing of it.
  if (!all.empty()) {
    MHD_run(m_daemon);
  }
}

Exchange& EndpointServer::exchangeOf(MHD_Connection* connection) {
  return *static_cast<Exchange*>(
      MHD_get_connection_info(connection, MHD_CONNECTION_INFO_SOCKET_CONTEXT)->socket_context);
}

void EndpointServer::noteConnection(void* self, MHD_Connection* connection, void** context,
                                    MHD_ConnectionNotificationCode code) {
  auto* server = static_cast<EndpointServer*>(self);
  if (code == MHD_CONNECTION_NOTIFY_STARTED) {
    server->open(connection, context);
  } else if (*context) {
    server->closed(*static_cast<Exchange*>(*context));
    *context = nullptr;
  }
}

void EndpointServer::open(MHD_Connection* connection, void** context) {
  const int socket = MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CONNECTION_FD)->connect_fd;
  *context = &m_exchanges.open(connection, socket);
}

void EndpointServer::closed(const Exchange& exchange) {
  if (exchange.isCutShort()) {
    noteMalformed(QStringLiteral("it could not be read, or not in time"));
  }
  m_hasRoomAgain = m_hasRoomAgain || m_exchanges.areFull();
  m_exchanges.close(exchange);
}

void* EndpointServer::noteTarget(void* self, const char* target, MHD_Connection* connection) {
  Exchange& exchange = exchangeOf(connection);
  exchange.target = target;
  exchange.method = {};
  exchange.origin = {};
  static_cast<EndpointServer*>(self)->m_exchanges.setStage(exchange, Exchange::Reading);
  return nullptr;
}

void EndpointServer::noteCompleted(void* self, MHD_Connection* connection, void**, MHD_RequestTerminationCode) {
  static_cast<EndpointServer*>(self)->complete(exchangeOf(connection));
}

void EndpointServer::complete(Exchange& exchange) {
  if (exchange.stage == Exchange::Reading) {
    noteMalformed(QStringLiteral("it ended in the middle"));
  }
  if (exchange.inFlight) {
    --m_inFlight;
  }
  exchange.inFlight = false;
  exchange.body = {};
  m_exchanges.setStage(exchange, Exchange::Idle);
}

QString EndpointServer::noteRefusal(const Verdict& verdict, const QByteArray& target) {
  const RefusalRow& row = rowOf(verdict.refusal);
  const QString sentence = QString::fromLatin1(row.sentence).arg(verdict.detail);
  m_refused.count(verdict.refusal);
  // A page that is refused without end must not fill the output of the run.
  const int told = m_refusalsTold++;
  if (told < mostRefusalsTold) {
    QByteArray shownTarget = target;
    shownTarget.replace(m_own.path.mid(1, m_own.path.size() - 2), "...secret...");
    qCWarning(webhookLog, "The endpoint refused '%s': %s", shownTarget.left(loggedTargetLength).constData(),
              qUtf8Printable(sentence));
  } else if (told == mostRefusalsTold) {
    qCWarning(webhookLog, "The endpoint refused more requests; they are not told one by one.");
  }
  return sentence;
}

void EndpointServer::noteMalformed(const QString& what) {
  if (!m_stopping) {
    noteRefusal({Refusal::Malformed, what}, "?");
  }
}

MHD_Result EndpointServer::handle(void* self, MHD_Connection* connection, const char*, const char* method, const char*,
                                  const char* data, size_t* size, void**) {
  auto* server = static_cast<EndpointServer*>(self);
  Exchange& exchange = exchangeOf(connection);
  if (exchange.method.isEmpty()) {
    return server->begin(exchange, method);
  }
  if (*size == 0) {
    return server->finish(exchange);
  }
  if (exchange.body.size() + qint64(*size) > server->m_limits.body) {
    return MHD_NO;
  }
  exchange.body.append(data, int(*size));
  *size = 0;
  return MHD_YES;
}

MHD_Result EndpointServer::begin(Exchange& exchange, const char* method) {
  exchange.method = method;
  const RequestHead head = headOf(exchange.connection, method, exchange.target);
  Verdict verdict = m_policy.judge(head, m_own, m_limits.body);
  exchange.origin = verdict.origin;
  if (verdict.refusal == Refusal::None && m_inFlight >= m_limits.requests) {
    verdict = {Refusal::Busy, QStringLiteral("%1 requests are in flight").arg(m_inFlight), verdict.origin};
  }
  if (verdict.refusal != Refusal::None) {
    return refuse(exchange, verdict);
  }
  exchange.knowsSecret = true;
  exchange.inFlight = true;
  ++m_inFlight;
  return MHD_YES;
}

MHD_Result EndpointServer::finish(Exchange& exchange) {
  m_exchanges.setStage(exchange, Exchange::Replying);
  if (exchange.method == "OPTIONS") {
    return sendPreflightReply(exchange.connection, exchange.origin);
  }
  const QByteArray body = exchange.method == "POST" ? exchange.body : QByteArray();
  return take(exchange, PageMessage::fromRequest(exchange.target.mid(m_own.path.size() + 1), body));
}

MHD_Result EndpointServer::take(Exchange& exchange, PageMessage message) {
  if (m_stopping) {
    return refuse(exchange, {Refusal::Busy, QStringLiteral("the endpoint is closing"), exchange.origin});
  }
  if (message.wantsReply()) {
    message.setWaitId(m_waits.open(QDeadlineTimer(m_limits.waitTime)));
  }
  const MessageQueue::Taken taken = m_messages.put(message);
  if (taken == MessageQueue::Taken::No) {
    m_waits.end(message.waitId());
    return refuse(exchange, {Refusal::Busy, QStringLiteral("too many messages are not taken yet"), exchange.origin});
  }
  ++m_accepted;
  if (taken == MessageQueue::Taken::YesAsFirst) {
    m_receiver.messagesWait();
  }
  if (!message.wantsReply()) {
    return sendReply(exchange.connection, MHD_HTTP_OK, {}, exchange.origin);
  }
  exchange.waitId = message.waitId();
  m_held[exchange.waitId] = &exchange;
  m_exchanges.setStage(exchange, Exchange::Held);
  MHD_suspend_connection(exchange.connection);
  return MHD_YES;
}

MHD_Result EndpointServer::refuse(Exchange& exchange, const Verdict& verdict) {
  const QString sentence = noteRefusal(verdict, exchange.target);
  m_exchanges.setStage(exchange, Exchange::Replying);
  return sendReply(exchange.connection, rowOf(verdict.refusal).status, "Refused: " + sentence.toUtf8(), verdict.origin);
}

}  // namespace Corvex::Webhook
