#pragma once

#include "webhook/endpoint/endpointlimits.h"
#include "webhook/endpoint/endpointpolicy.h"
#include "webhook/endpoint/exchanges.h"
#include "webhook/endpoint/messagequeue.h"
#include "webhook/endpoint/waittable.h"
#include "webhook/process/filedescriptor.h"

#include <microhttpd.h>
#include <atomic>
#include <functional>
#include <map>
#include <thread>

namespace Corvex::Webhook {

/// The HTTP side of the endpoint, on a thread of its own: reads requests, judges them, puts their messages into a
/// queue, and replies. The functions given to it are called on that thread.
class EndpointServer {
public:
  struct Receiver {
    std::function<void()> messagesWait;           ///< The queue is no longer empty.
    std::function<void(quint64)> waitUnanswered;  ///< A wait ended, and nobody had answered it.
  };

  EndpointServer(const EndpointLimits& limits, Receiver receiver);
  ~EndpointServer();
  EndpointServer(const EndpointServer&) = delete;
  EndpointServer& operator=(const EndpointServer&) = delete;

  /// Listens on a free port of 127.0.0.1. False if the system refuses; `error` gets its reason.
  bool start(QString* error);

  /// Ends all waits, sends the replies that are due, and closes. The messages stay in the queue.
  void stop();

  QByteArray place() const { return m_place; }
  quint64 accepted() const { return m_accepted; }
  QMap<QString, quint64> refused() const { return m_refused.byName(); }

  EndpointPolicy& policy() { return m_policy; }
  MessageQueue& messages() { return m_messages; }

  bool answerWait(quint64 id, const QByteArray& reply);

private:
  static void* noteTarget(void* self, const char* target, MHD_Connection* connection);
  static MHD_Result handle(void* self, MHD_Connection* connection, const char* url, const char* method,
                           const char* version, const char* data, size_t* size, void** context);
  static void noteCompleted(void* self, MHD_Connection* connection, void** context, MHD_RequestTerminationCode code);
  static void noteConnection(void* self, MHD_Connection* connection, void** context,
                             MHD_ConnectionNotificationCode code);
  static Exchange& exchangeOf(MHD_Connection* connection);

  void open(MHD_Connection* connection, void** context);
  void complete(Exchange& exchange);
  void closed(const Exchange& exchange);
  MHD_Result begin(Exchange& exchange, const char* method);
  MHD_Result finish(Exchange& exchange);
  MHD_Result take(Exchange& exchange, PageMessage message);
  MHD_Result refuse(Exchange& exchange, const Verdict& verdict);
  void endWaits();
  void noteClientGone(Exchange& exchange);
  QString noteRefusal(const Verdict& verdict, const QByteArray& target);
  void noteMalformed(const QString& what);

  void run();
  void wake();
  void pollOnce(const QDeadlineTimer& limit);

  const EndpointLimits m_limits;
  const Receiver m_receiver;
  EndpointPolicy m_policy;
  MessageQueue m_messages;
  WaitTable m_waits;
  RefusalFigures m_refused;
  std::atomic<int> m_refusalsTold{0};
  std::atomic<quint64> m_accepted{0};
  std::atomic<bool> m_stopping{false};

  MHD_Daemon* m_daemon = nullptr;
  int m_pollHandle = -1;
  FileDescriptor m_wakeHandle;
  QByteArray m_place;
  OwnAddress m_own;
  std::thread m_thread;

  // Of the server's thread alone.
  int m_inFlight = 0;
  bool m_hasRoomAgain = false;  ///< The library takes up listening again only when it is run once more.
  Exchanges m_exchanges;
  std::map<quint64, Exchange*> m_held;
};

}  // namespace Corvex::Webhook
