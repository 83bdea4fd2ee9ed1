#include "wrappers/web/picking/sendobjectpickedtospy.h"

#include "corvexhook/hook.h"
#include "tracelib/tracepoint.h"

namespace Corvex::WebWrapper {

void sendObjectPickedToSpy(const QString& objectName) {
  Hook& hook = *Hook::hook;
  const int spy = hook.spyConnection();
  const int connection = spy == -1 ? hook.defaultConnection() : spy;
  TRACE_POINT("WebWrapper",
              QStringLiteral("Sending object name \"%1\" to spy: %2").arg(objectName, QString::number(connection)));
  hook.send(connection, QStringLiteral("objectPicked"), {objectName});
}

}  // namespace Corvex::WebWrapper
