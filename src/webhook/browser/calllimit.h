#pragma once

#include <QDeadlineTimer>
#include <QPointer>

#include "webhook/browser/browsersession.h"

namespace Corvex::Webhook {

/// While it lives, all calls of a session's pages together take no longer than this.
class CallLimit {
public:
  CallLimit(BrowserSession* session, int milliseconds) : m_session(session) {
    m_session->setCallsEnd(QDeadlineTimer(milliseconds));
  }
  ~CallLimit() {
    if (m_session) {
      m_session->setCallsEnd(QDeadlineTimer(QDeadlineTimer::Forever));
    }
  }

  CallLimit(const CallLimit&) = delete;
  CallLimit& operator=(const CallLimit&) = delete;

private:
  QPointer<BrowserSession> m_session;
};

}  // namespace Corvex::Webhook
