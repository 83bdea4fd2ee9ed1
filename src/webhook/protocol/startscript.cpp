#include "webhook/protocol/startscript.h"

namespace Corvex::Webhook::StartScript {

// A script cannot declare a function whose name belongs to a property that cannot be redefined.
QString frameGuard() {
  return QStringLiteral(
      "if (window !== window.top) Object.defineProperty(window, '__corvex__topPageOnly', { value: 0 });");
}

QString forTopPage(const QString& script) { return QStringLiteral("function __corvex__topPageOnly(){} ") + script; }

}  // namespace Corvex::Webhook::StartScript
