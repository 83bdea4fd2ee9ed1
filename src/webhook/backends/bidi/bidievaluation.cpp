#include "webhook/backends/bidi/bidievaluation.h"

#include "webhook/browser/pageerrors.h"
#include "webhook/protocol/inpagetext.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace Corvex::Webhook {

namespace {

constexpr int documentsTried = 5;

/// What one evaluation gave; lets go of the object behind it with its end.
class Held {
public:
  Held(PageCall& call, const Reply& reply) : m_call(call), m_outcome(Bidi::readOutcome(reply.result)) {}
  ~Held() {
    if (!m_outcome.handle.isEmpty()) {
      m_call.post(Bidi::release(m_outcome.realm, m_outcome.handle));
    }
  }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

  const Bidi::Outcome* operator->() const { return &m_outcome; }

private:
  PageCall& m_call;
  const Bidi::Outcome m_outcome;
};

JavaScriptAnswer abortedBy(const PageCall& call, const Reply& reply) { return {call.errorOf(reply), false, true}; }

bool isAboutTheElement(const QString& refusal) {
  for (const char* code : {"unable to set file input", "no such element", "no such node", "invalid argument"}) {
    if (refusal.startsWith(QLatin1String(code))) {
      return true;
    }
  }
  return false;
}

Reply askToRun(PageCall& call, const Command& command) {
  Reply reply = call.ask(command);
  if (const std::optional<QJsonObject> exception = Bidi::readRefusedException(reply.error)) {
    reply = {Reply::Answered, *exception, {}};
  }
  return reply;
}

/// Whether the code ran nowhere, as the document that it was meant for had gone.
bool cameTooLate(const Reply& reply, const Bidi::Place& place) {
  const bool isPlaceGone = !place.realm.isEmpty() && reply.error.startsWith(QLatin1String("no such"));
  return reply.status == Reply::Refused &&
         (isPlaceGone || reply.error.startsWith(QLatin1String("Cannot find context")));
}

Reply askToEvaluate(PageCall& call, const PlaceNow& placeNow, const QString& code) {
  Reply reply;
  for (int document = 0; document < documentsTried; ++document) {
    const FunctionCallResult<Bidi::Place> place = placeNow(call);
    if (place.failed()) {
      return {Reply::Cancelled, {}, place.error};
    }
    reply = askToRun(call, Bidi::evaluate(place.value, code));
    if (!cameTooLate(reply, place.value)) {
      break;
    }
  }
  return reply;
}

/// An element as it can be named to the browser; without an id if it is none.
struct NamedElement {
  QString context;  ///< The page or the frame that it belongs to.
  QString sharedId;
};

NamedElement nameElement(PageCall& call, const QString& page, const Held& element) {
  const Reply owner = call.ask(Bidi::handOverElement(element->realm, element->handle));
  const QString context = owner.isAnswered() ? Bidi::readOutcome(owner.result).window : QString();
  if (context.isEmpty() || context == page) {
    return {page, element->sharedId};
  }
  const Reply reply = call.ask(Bidi::handedOverElement(context));
  if (!reply.isAnswered()) {
    return {};
  }
  const Held handedOver(call, reply);
  return {context, handedOver->sharedId};
}

}  // namespace

JavaScriptAnswer evaluateInPage(PageCall& call, const PlaceNow& placeNow, const QString& code) {
  const Reply reply = askToEvaluate(call, placeNow, code);
  if (!reply.isAnswered()) {
    return abortedBy(call, reply);
  }
  const Held value(call, reply);
  if (value->thrown || value->handle.isEmpty()) {
    return {value->text, value->thrown, false};
  }
  const Reply textReply = askToRun(call, Bidi::textOfObject(value->realm, value->handle));
  if (!textReply.isAnswered()) {
    return abortedBy(call, textReply);
  }
  const Bidi::Outcome text = Bidi::readOutcome(textReply.result);
  return {text.text, text.thrown, false};
}

QString insertText(PageCall& call, const PlaceNow& placeNow, const QString& text) {
  const QJsonDocument texts(QJsonArray{text});
  const QString code = inPageText("inserttext.js").arg(QString::fromUtf8(texts.toJson(QJsonDocument::Compact)));
  const JavaScriptAnswer answer = evaluateInPage(call, placeNow, code);
  return answer.succeeded() ? QString() : answer.text;
}

QString putFilesInto(PageCall& call, const QString& page, const PlaceNow& placeNow, const QString& referenceExpression,
                     const QStringList& paths) {
  const Reply reference = askToEvaluate(call, placeNow, referenceExpression);
  if (!reference.isAnswered()) {
    return call.errorOf(reference);
  }
  const Held element(call, reference);
  if (element->thrown) {
    return element->text.section(QLatin1Char('\n'), 0, 0);
  }
  const NamedElement named = element->handle.isEmpty() ? NamedElement() : nameElement(call, page, element);
  if (named.sharedId.isEmpty()) {
    return PageErrors::noFileInput(referenceExpression);
  }
  const Reply reply = call.ask(Bidi::setFiles(named.context, named.sharedId, paths));
  if (reply.isAnswered()) {
    return {};
  }
  if (reply.status != Reply::Refused) {
    return call.errorOf(reply);
  }
  return isAboutTheElement(reply.error) ? PageErrors::noFileInput(referenceExpression)
                                        : PageErrors::filesRefused(paths, reply.error);
}

}  // namespace Corvex::Webhook
