#pragma once

#include "webhook/endpoint/endpointlimits.h"
#include "webhook/endpoint/pagemessage.h"

#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <deque>
#include <memory>

namespace Corvex::Webhook {

class EndpointServer;

/// Where pages send what they have to say: an HTTP endpoint on the loopback interface, for the pages that are hooked
/// and for nobody else: they know its secret. It belongs to the driver's thread and answers on one of its own, so that
/// a page gets its reply also while the driver's thread is busy.
///
/// A message that a page was told had arrived is delivered: by the event loop of the driver's thread, or by deliver().
/// That holds for messages from before stop() too, as long as this object lives.
class MessageEndpoint : public QObject {
  Q_OBJECT

public:
  explicit MessageEndpoint(QObject* parent = nullptr) : MessageEndpoint(EndpointLimits(), parent) {}
  explicit MessageEndpoint(const EndpointLimits& limits, QObject* parent = nullptr);
  ~MessageEndpoint() override;

  /// Listens on a free port, or goes on listening. False if the system refuses; `error` gets a sentence.
  bool start(QString* error);

  /// Ends the waits that are open with an empty reply, and listens no more. Takes half a second at most.
  void stop();

  /// What stands after "http://127.0.0.1:" in the address of a message, before "/?": a port, and a secret that only
  /// the pages of this run are told. "" as long as it was not started.
  QString place() const;

  /// Replaces the origins of the documents that are let in, as originOf() writes them. May be called from any thread,
  /// and counts for the requests that come after it.
  void setAllowedOrigins(const QStringList& origins);

  /// Gives the page that stands in a wait its reply, from any thread. False if the wait ended already.
  bool answerWait(quint64 waitId, const QString& reply);

  /// Delivers at once what has arrived, in the order in which the pages wrote it. Inside the delivery of a message (a
  /// receiver may wait for a later one) it goes on with the ones after that.
  void deliver();

  /// The messages taken, and the requests refused by kind: "host", "origin", "method", "path", "size", "busy",
  /// "malformed".
  quint64 accepted() const;
  QMap<QString, quint64> refused() const;

Q_SIGNALS:
  /// One message of a page. A wait's waitId() is to be given to answerWait(). The receiver may delete the endpoint.
  void messageReceived(const Corvex::Webhook::PageMessage& message);

  /// A wait ended without an answer, as its time was over, its page went away, or the endpoint was stopped. Comes
  /// after the message that began the wait.
  void waitUnanswered(quint64 waitId);

private:
  std::unique_ptr<EndpointServer> m_server;
  std::deque<PageMessage> m_ready;
};

}  // namespace Corvex::Webhook
