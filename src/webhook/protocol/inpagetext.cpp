#include "webhook/protocol/inpagetext.h"

#include <QFile>
#include <QRegularExpression>

namespace Corvex::Webhook {

QString inPageText(const char* name) {
  QFile file(QStringLiteral(":/webhook/") + QLatin1String(name));
  if (!file.open(QIODevice::ReadOnly)) {
    qFatal("The script text '%s' is not built in.", name);
  }
  static const QRegularExpression placeOfCode(QStringLiteral("/\\*(%[1-9])\\*/"));
  return QLatin1Char('\n') + QString::fromUtf8(file.readAll()).replace(placeOfCode, QStringLiteral("\n\\1\n"));
}

}  // namespace Corvex::Webhook
