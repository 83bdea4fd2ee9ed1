#include "wrappers/web/elements/html_anchor.h"

#include "shared/wait.h"
#include "wrappers/web/glue/scriptclass.h"

namespace Corvex::WebWrapper {

const char* HTML_Anchor::className() const { return ScriptName; }

QString HTML_Anchor::click(int, int, int, int) {
  const JavaScriptAnswer answer = evaluateJS(deferredCode(QStringLiteral("__corvex__clickLink(%1);").arg(reference)));
  if (!answer.succeeded()) {
    return QStringLiteral("Failed to click link: %");
  }
  gentleSleep(settleTimeMs);
  return QString();
}

}  // namespace Corvex::WebWrapper
