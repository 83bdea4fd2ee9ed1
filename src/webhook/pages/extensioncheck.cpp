#include "webhook/pages/extensioncheck.h"

#include "webhook/pages/globaldeclarations.h"
#include "wrappers/web/setup/extensionscripts.h"

namespace Corvex::Webhook {

QString extensionError(const std::function<QString(const QString& code)>& evaluate, const QString& error) {
  // A text with a fault in its syntax keeps all others from running, so that is looked for first. Nothing is run for
  // it.
  for (const char* const code : {"if (false) {\n%1\n}", "%1"}) {
    for (const WebWrapper::ExtensionScript& script : WebWrapper::extensionScripts()) {
      const QString fault = evaluate(QString::fromLatin1(code).arg(withGlobalDeclarations(script.text)));
      if (!fault.isEmpty()) {
        return QStringLiteral("The extension script '%1' failed: %2. Mend it, or take it out of its folder.")
            .arg(script.path, fault);
      }
    }
  }
  return QStringLiteral("The hook script could not be evaluated in the page: %1").arg(error);
}

}  // namespace Corvex::Webhook
