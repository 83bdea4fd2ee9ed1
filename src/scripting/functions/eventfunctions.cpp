#include <QStringList>

#include "corvexhook/delegate.h"
#include "corvexhook/inspector.h"
#include "scripting/functions/targets.h"
#include "scripting/objects/overloads.h"

namespace Corvex::Scripting {

namespace {

QString unknownEvent(const QString& name) {
  QStringList names;
  for (const Event* event : Inspector::self()->globalClass()->events()) {
    names << event->name();
  }
  return QStringLiteral("Unknown event type: %1. There is %2.").arg(name, names.join(QStringLiteral(", ")));
}

/// Which of the arguments after the object do not suit the event; too few are left to the object's own sentence.
QString eventArgumentError(const Event& event, const ObjectList& arguments) {
  const Signature& signature = event.signature();
  if (arguments.size() > signature.count()) {
    return QStringLiteral("Event %1(%2) got %3 argument(s) after the object.")
        .arg(event.name(), signature.text(), QString::number(arguments.size()));
  }
  for (int i = 0; i < arguments.size(); ++i) {
    if (!isAcceptable(arguments[i], signature.at(i).type())) {
      return QStringLiteral("Event %1(%2): argument '%3' must be of type %4, but got %5.")
          .arg(event.name(), signature.text(), signature.at(i).name(), signature.at(i).type()->name(),
               describeValue(arguments[i]));
    }
  }
  return QString();
}

ObjectResult sendTo(const Target& target, const Event& event, const ObjectList& arguments) {
  const Class* const cls = target.object->objectClass();
  const auto* const delegate =
      dynamic_cast<const SendEventDelegate*>(DelegateFactory::self()->delegate(cls, Delegate::SendEventDelegateType));
  if (!delegate) {
    return ObjectResult::failure(QStringLiteral("%1 takes no events.").arg(cls->name()));
  }
  const bool sent = delegate->sendEvent(&event, target.object, arguments);
  const ObjectResult result = outcome(Inspector::self()->wrapVoid());
  return sent || result.failed() ? result
                                 : ObjectResult::failure(QStringLiteral("Event '%1' was not sent.").arg(event.name()));
}

ObjectResult sendEvent(const FunctionCall& call) {
  const SharedPtr<Object>& name = call.arguments[0];
  if (!isText(name)) {
    return ObjectResult::failure(
        QStringLiteral("sendEvent needs the name of an event first, but got %1.").arg(describeValue(name)));
  }
  const Event* const event = Inspector::self()->globalClass()->event(name->toString());
  if (!event) {
    return ObjectResult::failure(unknownEvent(name->toString()));
  }
  ObjectList arguments;
  for (int i = 2; i < call.arguments.size(); ++i) {
    arguments.push_back(call.arguments[i]);
  }
  const QString error = eventArgumentError(*event, arguments);
  if (!error.isEmpty()) {
    return ObjectResult::failure(error);
  }
  const Target target = awaitedTarget(call, call.arguments[1]);
  return target.error.isEmpty() ? sendTo(target, *event, arguments) : ObjectResult::failure(target.error);
}

}  // namespace

FunctionTable eventFunctions() {
  return {
      {"sendEvent", "sendEvent(event, object[, x, y[, state, button]])", 2, 6, sendEvent},
  };
}

}  // namespace Corvex::Scripting
