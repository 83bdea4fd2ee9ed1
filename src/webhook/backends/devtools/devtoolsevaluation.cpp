#include "webhook/backends/devtools/devtoolsevaluation.h"

#include <algorithm>

#include "webhook/browser/pageerrors.h"
#include "webhook/protocol/devtools/devtools.h"

namespace Corvex::Webhook {

namespace {

/// Holds the objects that one call gets handles of, and lets them go with its end.
class HandleGroup {
public:
  explicit HandleGroup(PageCall& call) : m_call(call), m_name(nextName()) {}
  ~HandleGroup() {
    if (m_used) {
      m_call.post(DevTools::releaseGroup(m_name));
    }
  }
  HandleGroup(const HandleGroup&) = delete;
  HandleGroup& operator=(const HandleGroup&) = delete;

  const QString& name() const { return m_name; }
  void noteUse(const DevTools::Outcome& outcome) { m_used = m_used || !outcome.handle.isEmpty(); }

private:
  // A name of its own for each call: a call that ends inside another one must not let go of the other's objects.
  static QString nextName() {
    static qint64 count = 0;
    return QStringLiteral("corvex-") + QString::number(++count);
  }

  PageCall& m_call;
  const QString m_name;
  bool m_used = false;
};

JavaScriptAnswer abortedBy(const PageCall& call, const Reply& reply) { return {call.errorOf(reply), false, true}; }

Command evaluation(const PageCall& call, const QString& code, const HandleGroup& group) {
  return DevTools::evaluate(code, group.name(), std::max(1, call.remainingMilliseconds()));
}

JavaScriptAnswer textOfObject(PageCall& call, const DevTools::Outcome& object, HandleGroup& group) {
  const Reply reply = call.ask(DevTools::textOfObject(object.handle, group.name()));
  if (!reply.isAnswered()) {
    return abortedBy(call, reply);
  }
  const DevTools::Outcome text = DevTools::readOutcome(reply.result);
  if (!text.thrown) {
    return {text.text, object.thrown, false};
  }
  // The conversion threw. For an exception its description says more than that.
  const QString description = object.thrown ? object.text : text.text;
  return {description.section(QStringLiteral("\n    at "), 0, 0), true, false};
}

}  // namespace

JavaScriptAnswer evaluateCode(PageCall& call, const QString& code) {
  HandleGroup group(call);
  const Reply reply = call.ask(evaluation(call, code, group));
  if (!reply.isAnswered()) {
    return abortedBy(call, reply);
  }
  const DevTools::Outcome outcome = DevTools::readOutcome(reply.result);
  group.noteUse(outcome);
  if (outcome.handle.isEmpty()) {
    return {outcome.text, outcome.thrown, false};
  }
  return textOfObject(call, outcome, group);
}

QString setFilesOfInput(PageCall& call, const QString& referenceExpression, const QStringList& paths) {
  HandleGroup group(call);
  const Reply reference = call.ask(evaluation(call, referenceExpression, group));
  if (!reference.isAnswered()) {
    return call.errorOf(reference);
  }
  const DevTools::Outcome outcome = DevTools::readOutcome(reference.result);
  group.noteUse(outcome);
  if (outcome.thrown) {
    return outcome.text.section(QLatin1Char('\n'), 0, 0);
  }
  if (outcome.handle.isEmpty()) {
    return PageErrors::noFileInput(referenceExpression);
  }
  const Reply reply = call.ask(DevTools::setFiles(outcome.handle, paths));
  if (reply.isAnswered()) {
    return {};
  }
  const bool wrongObject =
      reply.error.contains(QLatin1String("file input")) || reply.error.contains(QLatin1String("Node"));
  return reply.status == Reply::Refused && wrongObject ? PageErrors::noFileInput(referenceExpression)
                                                       : call.errorOf(reply);
}

}  // namespace Corvex::Webhook
