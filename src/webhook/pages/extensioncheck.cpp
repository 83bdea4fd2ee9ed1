#include "webhook/pages/extensioncheck.h"

#include "wrappers/web/page/htmlcomponent.h"

#include <QDir>
#include <QFile>

namespace Corvex::Webhook {

namespace {

QString readText(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

}  // namespace

QString extensionError(WebWrapper::HTMLComponent& component, const QString& error) {
  const QDir folder(QString::fromLocal8Bit(qgetenv("CORVEX_PREFIX")) + QStringLiteral("/lib/extensions/web"));
  for (const QString& name : folder.entryList({QStringLiteral("*.js")}, QDir::Files)) {
    const QString path = folder.absoluteFilePath(name);
    const WebWrapper::JavaScriptAnswer answer = component.evaluateJS(readText(path), 0);
    if (answer.failed) {
      return QStringLiteral("The extension script '%1' failed: %2. Mend it, or take it out of its folder.")
          .arg(path, answer.text);
    }
  }
  return QStringLiteral("The hook script could not be evaluated in the page: %1").arg(error);
}

}  // namespace Corvex::Webhook
