#pragma once

#include "corvexhook/export.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace Corvex {

/// Symbolic names of objects and the real names behind them, so that a name stands in one file and not in every script.
class CORVEXHOOK_EXPORT ObjectMap {
public:
  static ObjectMap* self();

  /// The real name behind a symbolic one; an empty text for a name that the map does not know.
  QString realName(const QString& symbolicName) const { return m_names.value(symbolicName); }
  /// All that the map knows, in alphabetical order.
  QStringList symbolicNames() const;
  void insert(const QString& symbolicName, const QString& realName) { m_names.insert(symbolicName, realName); }
  void clear() { m_names.clear(); }
  int size() const { return m_names.size(); }

  /// Adds the names of a UTF-8 file: one a line, the symbolic name, which begins with ":", then a tab, then the real
  /// name. Blank lines and lines that begin with "#" are passed over. Answers an error that names the file and the
  /// line, or an empty text; with an error the map is as it was. No symbolic name may stand twice in one file.
  QString load(const QString& path);

private:
  QHash<QString, QString> m_names;
};

}  // namespace Corvex
