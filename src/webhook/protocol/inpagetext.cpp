#include "webhook/protocol/inpagetext.h"

#include <QFile>

namespace Corvex::Webhook {

QString inPageText(const char* name) {
  QFile file(QStringLiteral(":/webhook/") + QLatin1String(name));
  return file.open(QIODevice::ReadOnly) ? QLatin1Char('\n') + QString::fromUtf8(file.readAll()) : QString();
}

}  // namespace Corvex::Webhook
