#pragma once

#include <QString>
#include <QStringList>

namespace Walks {

/// What somebody did on a page, and what became of it.
struct Walk {
  QString page;
  unsigned int seed = 0;
  QStringList acts;
  QString script;
  QString state;
  /// Why the page of the replay is not as the person left it; empty where it is.
  QString miss;

  bool isEqual() const { return miss.isEmpty(); }
};

/// The first line in which two texts are not the same.
QString firstDifference(const QString& wanted, const QString& got);

}  // namespace Walks
