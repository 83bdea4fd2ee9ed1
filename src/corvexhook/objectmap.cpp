#include "corvexhook/objectmap.h"

#include "corvexhook/objectname.h"
#include "shared/textfile.h"

namespace Corvex {

namespace {

QString lineError(const QString& line, QString* symbolic, QString* real) {
  const int tab = line.indexOf(QLatin1Char('\t'));
  if (!line.startsWith(QLatin1Char(':')) || tab < 2) {
    return QStringLiteral("expected a symbolic name that begins with ':', a tab, and the real name");
  }
  *symbolic = line.left(tab);
  *real = line.mid(tab + 1).trimmed();
  if (real->isEmpty()) {
    return QStringLiteral("the real name behind the tab is missing");
  }
  if (real->startsWith(QLatin1Char(':'))) {
    return QStringLiteral("'%1' is a symbolic name, too; the real name has to stand behind the tab").arg(*real);
  }
  return ObjectName(*real).parseError();
}

}  // namespace

ObjectMap* ObjectMap::self() {
  static ObjectMap map;
  return &map;
}

QStringList ObjectMap::symbolicNames() const {
  QStringList names = m_names.keys();
  names.sort();
  return names;
}

QString ObjectMap::load(const QString& path) {
  const FunctionCallResult<QString> text = readTextFile(path);
  if (text.failed()) {
    return QStringLiteral("Cannot read the object map '%1': %2.").arg(path, text.error);
  }
  QHash<QString, QString> names = m_names;
  QHash<QString, int> lines;
  int number = 0;
  for (const QString& line : text.value.split(QLatin1Char('\n'))) {
    ++number;
    if (line.trimmed().isEmpty() || line.startsWith(QLatin1Char('#'))) {
      continue;
    }
    QString symbolic;
    QString real;
    QString error = lineError(line, &symbolic, &real);
    if (error.isEmpty() && lines.contains(symbolic)) {
      error = QStringLiteral("'%1' stands in line %2 already").arg(symbolic, QString::number(lines.value(symbolic)));
    }
    if (!error.isEmpty()) {
      return QStringLiteral("%1:%2: %3.").arg(path, QString::number(number), error);
    }
    names.insert(symbolic, real);
    lines.insert(symbolic, number);
  }
  m_names = names;
  return QString();
}

}  // namespace Corvex
