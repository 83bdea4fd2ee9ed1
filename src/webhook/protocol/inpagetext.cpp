#include "webhook/protocol/inpagetext.h"

#include <QFile>

namespace Corvex::Webhook {

QString inPageText(const char* name) {
  QFile file(QStringLiteral(":/webhook/") + QLatin1String(name));
  if (!file.open(QIODevice::ReadOnly)) {
    qFatal("The script text '%s' is not built in.", name);
  }
  return QLatin1Char('\n') + QString::fromUtf8(file.readAll());
}

}  // namespace Corvex::Webhook
