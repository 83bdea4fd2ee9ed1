#include "webhook/typings/typings.h"

#include "webhook/typings/classdeclarations.h"
#include "webhook/typings/memberdescriptions.h"

#include <QFile>

namespace Corvex::Webhook {

namespace {

// One file for each family of functions, in the order in which they are printed.
const char* const families[] = {"types",   "finding", "waiting", "tree",   "input", "windows",
                                "dialogs", "page",    "screen",  "checks", "script"};

QString resource(const QString& name) {
  QFile file(QStringLiteral(":/webhook/typings/") + name);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

}  // namespace

QString typings() {
  QString text = QStringLiteral(
      "// What test scripts of corvexweb have. Objects that there are none of are null, also where the type does not "
      "say\n"
      "// so: a script that goes on with one ends with an error.\n");
  for (const char* family : families) {
    text += QLatin1Char('\n') + resource(QLatin1String(family) + QLatin1String(".d.ts"));
  }
  return text + classDeclarations(MemberDescriptions(resource(QStringLiteral("members.txt"))));
}

}  // namespace Corvex::Webhook
