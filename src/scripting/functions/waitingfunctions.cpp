#include "corvexhook/inspector.h"
#include "scripting/functions/targets.h"
#include "scripting/objects/overloads.h"
#include "shared/wait.h"

namespace Corvex::Scripting {

namespace {

// How long a pause goes on at most before it sees that the script is to end.
const int pauseIntervalMs = 50;

const int goneIntervalMs = 20;

const QString visible = QStringLiteral("visible");

// A day: no one means more.
const double maxSeconds = 86400;

ObjectResult pause(const FunctionCall& call) {
  const SharedPtr<Object> argument = call.arguments[0];
  const double seconds = isNumber(argument) ? argument->toDouble() : -1;
  if (!(seconds >= 0 && seconds <= maxSeconds)) {
    return ObjectResult::failure(
        QStringLiteral("pause needs a number of seconds from 0 to 86400, but got %1.").arg(describeValue(argument)));
  }
  // A script that knows of its lost browser may pause all the same.
  const QString known = Inspector::self()->whyNotGoOn();
  QString end;
  // The clock counts whole milliseconds, and the first of them may be almost over.
  const int milliseconds = seconds > 0 ? static_cast<int>(seconds * 1000 + 0.5) + 1 : 0;
  poll(milliseconds, pauseIntervalMs, [&] {
    end = Inspector::self()->whyNotGoOn();
    return !end.isEmpty() && end != known;
  });
  return end.isEmpty() || end == known ? outcome(nullptr) : ObjectResult::failure(end);
}

/// Whether a visible object fits the name; the error when that cannot be told now.
FunctionCallResult<bool> isShown(const FunctionCall& call, const QString& name) {
  using Result = FunctionCallResult<bool>;
  const ObjectList found = Inspector::self()->lookupAll(name);
  const ObjectResult lookup = outcome(nullptr);
  if (lookup.failed()) {
    return Result::failure(lookup.error);
  }
  for (const SharedPtr<Object>& object : found) {
    const bool knowsIt = object->objectClass()->property(visible) != nullptr;
    const ObjectResult shown = knowsIt ? call.context.calls->readProperty(object, visible) : ObjectResult();
    if (shown.failed() || !shown.value || shown.value->toBool()) {
      return shown.failed() ? Result::failure(shown.error) : Result::success(true);
    }
  }
  return Result::success(false);
}

ObjectResult waitForObjectGone(const FunctionCall& call) {
  if (!isText(call.arguments[0])) {
    return ObjectResult::failure(QStringLiteral("waitForObjectGone needs the name of an object, but got %1.")
                                     .arg(describeValue(call.arguments[0])));
  }
  const QString name = call.arguments[0]->toString();
  const FunctionCallResult<int> time = timeToWait(call, 1);
  FunctionCallResult<bool> shown = time.failed() ? FunctionCallResult<bool>::failure(time.error) : isShown(call, name);
  if (shown.failed()) {
    return ObjectResult::failure(shown.error);
  }
  QString end;
  poll(shown.value ? time.value : 0, goneIntervalMs, [&] {
    shown = shown.value || shown.failed() ? isShown(call, name) : shown;
    end = Inspector::self()->whyNotGoOn();
    return (!shown.value && !shown.failed()) || !end.isEmpty();
  });
  if (!shown.failed() && !shown.value) {
    return outcome(nullptr);
  }
  const QString sentence = shown.failed() ? QStringLiteral("Whether '%1' is gone could not be told within %2 ms: %3")
                                          : QStringLiteral("'%1' was still there after %2 ms, and visible.%3");
  return ObjectResult::failure(end.isEmpty() ? sentence.arg(name, QString::number(time.value), shown.error) : end);
}

}  // namespace

FunctionTable waitingFunctions() {
  return {
      {"pause", "pause(seconds)", 1, 1, pause},
      {"waitForObjectGone", "waitForObjectGone(name[, milliseconds])", 1, 2, waitForObjectGone},
  };
}

}  // namespace Corvex::Scripting
