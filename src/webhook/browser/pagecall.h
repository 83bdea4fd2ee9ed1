#pragma once

#include <QDeadlineTimer>
#include <QPointer>

#include "webhook/protocol/transport/channel.h"

namespace Corvex::Webhook {

/// One call of a page: its requests share one deadline. Outlives page and channel, so that a
/// call can end in order when both went while it waited.
class PageCall {
public:
  PageCall(Channel* channel, const QString& session, int timeoutMs);

  Reply ask(const Command& command) { return askIn(m_session, command); }
  Reply askBrowser(const Command& command) { return askIn(QString(), command); }
  void post(const Command& command);

  /// The sentence for a reply that is no answer.
  QString errorOf(const Reply& reply) const;

  const QDeadlineTimer& deadline() const { return m_deadline; }

  /// The time that the call was granted.
  int milliseconds() const { return m_milliseconds; }
  int remainingMilliseconds() const { return int(m_deadline.remainingTime()); }

private:
  Reply askIn(const QString& session, const Command& command);

  QPointer<Channel> m_channel;
  QString m_session;
  int m_milliseconds;
  QDeadlineTimer m_deadline;
};

}  // namespace Corvex::Webhook
