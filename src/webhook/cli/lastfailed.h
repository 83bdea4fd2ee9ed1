#pragma once

#include "scripting/scriptlistener.h"

#include <QSet>
#include <QString>

namespace Corvex::Webhook {

/// Which scripts failed when they last ran from the current folder. Runs leave that to each other in a file below the
/// user's cache folder, one for each folder that scripts are run from, as long as there are any.
class LastFailed : public Scripting::ScriptListener {
public:
  LastFailed();

  /// Reads what the last runs have left. Answers why that cannot be told; empty also where they left nothing.
  QString read();
  bool isEmpty() const { return m_failed.isEmpty(); }
  bool contains(const QString& path) const;

  /// Leaves it to the next run. Answers why not, or an empty text.
  QString save() const;

  /// Scripts that do not run stay what they were.
  void scriptFinished(const Scripting::ScriptResult& result) override;

private:
  QString m_file;
  /// Absolute paths.
  QSet<QString> m_failed;
};

}  // namespace Corvex::Webhook
