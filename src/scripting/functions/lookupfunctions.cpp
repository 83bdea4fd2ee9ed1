#include "corvexhook/arrayclass.h"
#include "corvexhook/inspector.h"
#include "scripting/functions/targets.h"
#include "scripting/objects/overloads.h"

namespace Corvex::Scripting {

namespace {

ObjectResult nameError(const FunctionCall& call) {
  return ObjectResult::failure(QStringLiteral("%1 needs the name of an object, but got %2.")
                                   .arg(QLatin1String(call.function), describeValue(call.arguments[0])));
}

ObjectResult findObject(const FunctionCall& call) {
  return isText(call.arguments[0]) ? look(call, call.arguments[0]->toString(), 0) : nameError(call);
}

ObjectResult waitForObject(const FunctionCall& call) {
  if (!isText(call.arguments[0])) {
    return nameError(call);
  }
  const FunctionCallResult<int> timeoutMs = timeToWait(call, 1);
  return timeoutMs.failed() ? ObjectResult::failure(timeoutMs.error)
                            : look(call, call.arguments[0]->toString(), timeoutMs.value);
}

ObjectResult findAllObjects(const FunctionCall& call) {
  if (!isText(call.arguments[0])) {
    return nameError(call);
  }
  const ObjectList found = Inspector::self()->lookupAll(call.arguments[0]->toString());
  return outcome(ArrayClass::wrapObject({found.begin(), found.end()}));
}

ObjectResult exists(const FunctionCall& call) {
  if (!isText(call.arguments[0])) {
    return nameError(call);
  }
  Inspector* inspector = Inspector::self();
  const ObjectResult found = outcome(inspector->lookup(call.arguments[0]->toString()));
  return found.failed() ? found : outcome(inspector->wrapBool(found.value && !found.value->isNull()));
}

}  // namespace

FunctionTable lookupFunctions() {
  return {
      {"findObject", "findObject(name)", 1, 1, findObject},
      {"waitForObject", "waitForObject(name[, milliseconds])", 1, 2, waitForObject},
      {"findAllObjects", "findAllObjects(name)", 1, 1, findAllObjects},
      {"exists", "exists(name)", 1, 1, exists},
  };
}

}  // namespace Corvex::Scripting
