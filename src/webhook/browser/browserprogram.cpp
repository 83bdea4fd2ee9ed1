#include "webhook/browser/browserprogram.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace Corvex::Webhook::BrowserProgram {

namespace {

QString pathOf(const QString& name) {
  if (!name.contains(QLatin1Char('/'))) {
    return QStandardPaths::findExecutable(name);
  }
  const QFileInfo file(name);
  return file.isFile() && file.isExecutable() ? file.absoluteFilePath() : QString();
}

FunctionCallResult<QString> programAt(const QString& name, const QString& errorWithoutOne) {
  const QString path = pathOf(name);
  return {path, path.isEmpty() ? errorWithoutOne : QString()};
}

}  // namespace

FunctionCallResult<QString> find(const Family& family, const QString& wanted) {
  if (!wanted.isEmpty() && wanted != family.word) {
    return programAt(wanted, QStringLiteral("There is no browser '%1'. Give chromium, firefox, or the path of %2.")
                                 .arg(wanted, family.description));
  }
  const QString fromEnvironment = QString::fromLocal8Bit(qgetenv(family.variable.toLatin1().constData()));
  if (!fromEnvironment.isEmpty()) {
    return programAt(fromEnvironment,
                     QStringLiteral("%1 is set to '%2', which is no program. Set it to the path of %3, or unset it.")
                         .arg(family.variable, fromEnvironment, family.description));
  }
  for (const QString& name : family.names) {
    const QString path = pathOf(name);
    if (!path.isEmpty()) {
      return {path, {}};
    }
  }
  return {{},
          QStringLiteral("There is no %1 on this machine. Install it (on Debian: apt-get install %2), or set %3 to the "
                         "path of %4.")
              .arg(family.word.left(1).toUpper() + family.word.mid(1), family.package, family.variable,
                   family.description)};
}

}  // namespace Corvex::Webhook::BrowserProgram
