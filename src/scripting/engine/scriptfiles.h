#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include "scripting/scriptresult.h"
#include "shared/functioncallresult.h"

namespace Corvex::Scripting {

/// The files of one running script, and what is known of their lines.
class ScriptFiles {
public:
  /// `path` is shown to people as it was given; the engine knows the file by
  /// its absolute path.
  explicit ScriptFiles(const QString& path);

  /// The text of a file, ready to be evaluated.
  FunctionCallResult<QString> read(const QString& absolutePath);
  QString absolutePath() const { return m_absolutePath; }
  /// Where relative paths of the script start.
  QString folder() const;

  /// Sorts functions as the files that were read declare them; others come last.
  QStringList inOrderOfDeclaration(const QStringList& functions) const;

  /// Where in the scripts the calls of a stack stand; calls of one line that follow each other are one,
  /// the innermost. Without any the
  /// file alone.
  ScriptTrace traceOf(const QString& stack) const;
  /// Whether the line of the innermost call of the stack calls a member of this name, wherever it has it.
  bool callsMember(const QString& stack, const QString& name) const;

private:
  struct Place {
    QString absolutePath;
    int line = 0;
    QString function;
  };

  std::vector<Place> placesOf(const QString& stack) const;
  QString lineAt(const Place& place) const;
  QString shownPath(const QString& absolutePath) const;

  QString m_path;
  QString m_absolutePath;
  QHash<QString, QStringList> m_lines;
  QStringList m_declared;
};

}  // namespace Corvex::Scripting
