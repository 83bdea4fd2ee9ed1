#pragma once

#include "webhook/endpoint/endpoint.h"
#include "webhook/endpoint/pagemessage.h"

#include <QObject>
#include <QTimer>

namespace Corvex::WebWrapper {
class EventLogger;
}

namespace Corvex::Webhook {

class BrowserWindows;
class Connection;
class Dialogs;

/// Takes what pages say of their own accord, by whichever way it comes, to the one that it is for: dialogs, the
/// framework's list of unmatched properties, a recording, who shows what is picked, the log.
class MessageDispatcher : public QObject {
  Q_OBJECT

public:
  /// All three outlive this object. Pages that cannot reach the endpoint leave their messages in the queue of their
  /// session, which is read about once a second while events are served.
  MessageDispatcher(MessageEndpoint& endpoint, BrowserWindows& windows, Dialogs& dialogs);

  /// Who takes what happens in pages, each message as it comes; borrowed, null for nobody. What came before is not
  /// kept.
  void setEventLogger(WebWrapper::EventLogger* logger) { m_logger = logger; }

Q_SIGNALS:
  /// While objects are picked, the pointer came to rest on one: its rectangle on the screen, a comma, its name.
  void objectHovered(const QString& info);

private:
  void dispatch(const PageMessage& message);
  void takeLogEvent(const PageMessage& message);
  void drainQueues();
  void greetSoon();
  void drain(Connection& connection);
  void letIn(const QString& url);

  MessageEndpoint& m_endpoint;
  BrowserWindows& m_windows;
  Dialogs& m_dialogs;
  WebWrapper::EventLogger* m_logger = nullptr;
  QTimer m_drainTimer;
  bool m_draining = false;
  // Those of documents that went away too: their last messages come after the news of the next document.
  QStringList m_origins;
};

}  // namespace Corvex::Webhook
