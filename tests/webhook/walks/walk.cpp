#include "webhook/walks/walk.h"

namespace Walks {

QString firstDifference(const QString& wanted, const QString& got) {
  const QStringList wantedLines = wanted.split(QLatin1Char('\n'));
  const QStringList gotLines = got.split(QLatin1Char('\n'));
  for (int i = 0; i < wantedLines.size() || i < gotLines.size(); ++i) {
    if (wantedLines.value(i) != gotLines.value(i)) {
      return QStringLiteral("line %1\n      left by the person: %2\n      by the script:      %3")
          .arg(i + 1)
          .arg(wantedLines.value(i), gotLines.value(i));
    }
  }
  return QString();
}

}  // namespace Walks
