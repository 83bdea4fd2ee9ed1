#include "corvexhook/inspector.h"
#include "scripting/functions/targets.h"
#include "scripting/objects/overloads.h"
#include "shared/wait.h"

namespace Corvex::Scripting {

namespace {

// How long a pause goes on at most before it sees that the script is to end.
const int pauseIntervalMs = 50;

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
  poll(static_cast<int>(seconds * 1000 + 0.5), pauseIntervalMs, [&] {
    end = Inspector::self()->whyNotGoOn();
    return !end.isEmpty() && end != known;
  });
  return end.isEmpty() || end == known ? outcome(nullptr) : ObjectResult::failure(end);
}

}  // namespace

FunctionTable waitingFunctions() {
  return {
      {"pause", "pause(seconds)", 1, 1, pause},
  };
}

}  // namespace Corvex::Scripting
