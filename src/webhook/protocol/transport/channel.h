#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <functional>
#include <map>
#include <memory>

#include "shared/wait.h"
#include "webhook/protocol/dialect.h"
#include "webhook/protocol/transport/transport.h"

namespace Corvex::Webhook {

/// How a request ended.
struct Reply {
  enum Status {
    Open,       ///< Not ended yet.
    Answered,   ///< `result` holds the answer.
    Refused,    ///< The browser could not do it; `error` holds its words.
    TimeOver,   ///< There was no answer within the deadline.
    Cancelled,  ///< cancelSession() ended it; `error` is the reason that was given.
    Lost,       ///< The connection ended; `error` is the reason.
  };

  Status status = Open;
  QJsonObject result;
  QString error;

  bool isAnswered() const { return status == Answered; }
};

/// A request that was sent. Complete as soon as `reply` is final.
struct Request : Pending {
  qint64 id = 0;
  QString session;
  Reply reply;
};

/// Requests and answers, paired by number, over one transport. Every request ends exactly once: by its answer, its
/// deadline, cancelSession(), or the end of the connection, be it only that this object is deleted. Answers that come
/// too late, to numbers that nobody knows, or in no readable form are dropped, and the first of these logged.
class Channel : public QObject {
  Q_OBJECT

public:
  using EventHandler = std::function<void(const QString& method, const QJsonObject& parameters)>;

  Channel(std::unique_ptr<Transport> transport, const Dialect& dialect);
  ~Channel() override;

  /// Sends a request without waiting. The reply may be ignored.
  std::shared_ptr<Request> start(const QString& session, const Command& command);

  /// Sends a request and waits for its end. This object may be gone on return.
  Reply call(const QString& session, const Command& command, const QDeadlineTimer& deadline);

  /// Ends every open request of the session with the status Cancelled.
  void cancelSession(const QString& session, const QString& reason);

  /// Hands the session's events to `handler` as long as `receiver` lives; "" is the browser itself. One per session.
  void subscribe(const QString& session, QObject* receiver, EventHandler handler);

  bool isOpen() const { return !m_closed; }
  QString closeReason() const { return m_closeReason; }

  /// Ends the connection from this side: no signal, every open request ends as Lost.
  void close(const QString& reason);

Q_SIGNALS:
  /// The other side is gone. Every open request has ended before.
  void closed(const QString& reason);

private:
  struct Subscription {
    QPointer<QObject> receiver;
    EventHandler handler;
  };

  void takeMessage(const QByteArray& text);
  void takeReply(const WireMessage& message);
  void takeEvent(const WireMessage& message);
  void endAll(const QString& reason);

  std::unique_ptr<Transport> m_transport;
  const Dialect& m_dialect;
  std::map<qint64, std::shared_ptr<Request>> m_open;
  QHash<QString, Subscription> m_subscriptions;
  qint64 m_lastId = 0;
  QString m_closeReason;
  bool m_closed = false;
  int m_unreadable = 0;
};

}  // namespace Corvex::Webhook
