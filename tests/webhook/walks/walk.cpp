#include "webhook/walks/walk.h"

namespace Walks {

namespace {

const int before = 30;
const int shown = 120;

}  // namespace

QString firstDifference(const QString& wanted, const QString& got) {
  const QStringList wantedLines = wanted.split(QLatin1Char('\n'));
  const QStringList gotLines = got.split(QLatin1Char('\n'));
  for (int i = 0; i < wantedLines.size() || i < gotLines.size(); ++i) {
    const QString left = wantedLines.value(i);
    const QString made = gotLines.value(i);
    if (left != made) {
      int same = 0;
      while (same < left.size() && same < made.size() && left.at(same) == made.at(same)) {
        ++same;
      }
      return QStringLiteral("line %1\n      left by the person: %2\n      by the script:      %3")
          .arg(i + 1)
          .arg(left.mid(qMax(0, same - before), shown), made.mid(qMax(0, same - before), shown));
    }
  }
  return QString();
}

}  // namespace Walks
