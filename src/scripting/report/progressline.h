#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <cstdio>

#include "scripting/scriptlistener.h"

namespace Corvex::Scripting {

/// The line after all others of a terminal that tells which scripts run, and for how long the run takes:
/// "[2/5] 0:07 login.js". It is rewritten while events are served, and nothing is left of it.
class CORVEXSCRIPTING_EXPORT ProgressLine : public ScriptListener {
public:
  /// Borrows the stream. Nothing is shown where that is no terminal, or one that cannot rewrite lines.
  ProgressLine(std::FILE* out, int scripts);
  ~ProgressLine() override;

  void scriptStarted(const QString& path) override;
  void scriptFinished(const ScriptResult& result) override;
  void runFinished(const RunSummary& summary) override;

  /// What to write in place of lines that are to stand before it. It is cut to the width of the terminal.
  QString around(const QString& lines);
  /// What takes it away when the program is cut off; null where nothing is shown.
  const char* farewell() const;
  /// Takes it away for a moment, for lines that go to the terminal by another way.
  void hide();

private:
  QString text() const;
  void show();

  std::FILE* m_out;
  bool m_isOn;
  bool m_isShown = false;
  int m_scripts;
  int m_finished = 0;
  QStringList m_running;
  QElapsedTimer m_time;
  QTimer m_timer;
};

}  // namespace Corvex::Scripting
