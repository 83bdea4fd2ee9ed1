#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include "scripting/scriptresult.h"
#include "shared/functioncallresult.h"

class QJSValue;

namespace Corvex::Scripting {

/// The files of one running script, and what is known of their lines.
class ScriptFiles {
public:
  /// `path` is shown to people as it was given; the engine knows the file by
  /// its absolute path.
  explicit ScriptFiles(const QString& path);

  /// The text of a file, ready to be evaluated.
  FunctionCallResult<QString> read(const QString& absolutePath);
  QString sourceLine(const ScriptLocation& location) const;
  /// Where in a script the topmost call of a stack stands that does.
  ScriptLocation locationOf(const QString& stack) const;
  QString absolutePath() const { return m_absolutePath; }

private:
  QString shownPath(const QString& absolutePath) const;

  QString m_path;
  QString m_absolutePath;
  QHash<QString, QStringList> m_lines;
};

/// What a thrown value says to people. `memberErrors` are the sentences for the
/// members that objects were found to lack, by the members' names: a call of such
/// a member ends with an error of the engine's own, which says less.
QString thrownText(const QJSValue& thrown, const QHash<QString, QString>& memberErrors);

}  // namespace Corvex::Scripting
