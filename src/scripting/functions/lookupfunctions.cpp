#include <limits>

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
  int timeoutMs = Inspector::self()->defaultTimeout();
  if (call.arguments.size() > 1) {
    const SharedPtr<Object> time = call.arguments[1];
    if (!isNumber(time) || time->toDouble() < 0 || time->toDouble() > std::numeric_limits<int>::max()) {
      return ObjectResult::failure(
          QStringLiteral("waitForObject: the time to wait must be a number of milliseconds, but got %1.")
              .arg(describeValue(time)));
    }
    timeoutMs = static_cast<int>(time->toDouble());
  }
  return look(call, call.arguments[0]->toString(), timeoutMs);
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
