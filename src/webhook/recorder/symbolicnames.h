#pragma once

#include <QHash>
#include <QSet>
#include <QString>

namespace Corvex {
class ObjectMap;

namespace Webhook {

/// Symbolic names for the real ones of a recording: those of a map, and short readable new ones for what it lacks.
class SymbolicNames {
public:
  explicit SymbolicNames(const ObjectMap& map);

  struct Answer {
    QString symbolicName;
    bool isNew = false;
  };
  /// The same for names that mean the same: with the same properties, in whatever order. A new name is taken from then
  /// on.
  Answer nameFor(const QString& realName);

private:
  QString makeName(const QString& realName) const;

  QHash<QString, QString> m_symbolicNames;
  QSet<QString> m_taken;
};

}  // namespace Webhook
}  // namespace Corvex
