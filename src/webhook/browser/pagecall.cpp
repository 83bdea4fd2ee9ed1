#include "webhook/browser/pagecall.h"

#include "webhook/browser/pageerrors.h"

namespace Corvex::Webhook {

namespace {

struct RefusalRow {
  const char* browsersWords;
  QString (*sentence)(const PageCall& call);
};

QString replaced(const PageCall&) { return PageErrors::pageReplaced(); }
QString closed(const PageCall&) { return PageErrors::pageClosed(); }
QString crashed(const PageCall&) { return PageErrors::pageCrashed(); }
QString noDialog(const PageCall&) { return PageErrors::noDialogOpen(); }
QString timeOver(const PageCall& call) { return PageErrors::noAnswerWithin(call.milliseconds()); }

const RefusalRow refusals[] = {
    {"Inspected target navigated or closed", replaced},
    {"Execution context was destroyed", replaced},
    {"Cannot find context with specified id", replaced},
    {"Cannot find default execution context", replaced},
    {"Could not find object with given id", replaced},
    {"Execution was terminated", timeOver},
    {"Session with given id not found", closed},
    {"No target with given id found", closed},
    {"Target crashed", crashed},
    {"no such realm", replaced},
    {"no such handle", replaced},
    {"AbortError", replaced},
    {"no such frame", closed},
    {"no such alert", noDialog},
};

}  // namespace

PageCall::PageCall(Channel* channel, const QString& session, int timeoutMs)
    : m_channel(channel),
      m_session(session),
      m_milliseconds(grantedTime(timeoutMs)),
      m_deadline(m_milliseconds, Qt::PreciseTimer) {}

Reply PageCall::askIn(const QString& session, const Command& command) {
  if (!m_channel) {
    return {Reply::Lost, {}, QStringLiteral("the connection was closed")};
  }
  return m_channel->call(session, command, m_deadline);
}

void PageCall::post(const Command& command) {
  if (m_channel) {
    m_channel->start(m_session, command);
  }
}

QString PageCall::errorOf(const Reply& reply) const {
  switch (reply.status) {
    case Reply::Open:
    case Reply::Answered:
      return {};
    case Reply::TimeOver:
      return PageErrors::noAnswerWithin(m_milliseconds);
    case Reply::Cancelled:
      return reply.error;
    case Reply::Lost:
      return PageErrors::browserLost(reply.error);
    case Reply::Refused:
      break;
  }
  for (const RefusalRow& row : refusals) {
    if (reply.error.startsWith(QLatin1String(row.browsersWords))) {
      return row.sentence(*this);
    }
  }
  return PageErrors::refused(reply.error);
}

}  // namespace Corvex::Webhook
