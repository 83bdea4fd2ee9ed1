#include "webhook/protocol/startscript.h"

#include "webhook/protocol/inpagetext.h"

namespace Corvex::Webhook::StartScript {

QString frameGuard() { return inPageText("frameguard.js"); }

QString forTopPage(const QString& script) { return inPageText("toppageonly.js") + script; }

}  // namespace Corvex::Webhook::StartScript
