#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

namespace TestSupport {

/// What a run of the program gave.
struct ProgramResult {
  int exitCode = -1;
  QString output;
  QString errors;
};

/// Runs the program as a user does, in a folder of its own, where scripts can be written. What it leaves in the
/// temporary folder can be seen. While it is waited for, events are served: servers of this process answer it.
class ProgramRun {
public:
  ProgramRun();

  /// Writes a file into the folder; gives its path.
  QString write(const QString& name, const QString& text);
  QString folder() const { return m_folder.path(); }
  void setEnvironment(const QString& name, const QString& value) { m_environment.insert(name, value); }

  void start(const QStringList& arguments);
  /// Reads the output until it holds `text`; false when the program ended without it.
  bool waitForOutput(const QString& text);
  /// Serves events until the condition holds; false when the program ended before.
  bool waitUntil(const std::function<bool()>& condition);
  ProgramResult finish();
  ProgramResult run(const QStringList& arguments);
  /// Lets a shell run this line, in which `"$@"` stands for the program and its arguments.
  ProgramResult runInShell(const QString& line, const QStringList& arguments);

  qint64 processId() const { return m_process.processId(); }
  /// Files and folders that the program left in its temporary folder.
  QStringList leftovers() const;
  /// Processes that carry the program's temporary folder in their command line.
  QList<qint64> browserProcesses() const;
  /// All processes of this program, and of those that it started.
  QList<qint64> processes() const;
  /// Serves events until the condition holds; false when it does not come about.
  static bool eventually(const std::function<bool()>& condition);

private:
  QStringList withBrowser(const QStringList& arguments) const;
  void serveUntil(const std::function<bool()>& isDone);
  bool hasEnded() const { return m_process.state() == QProcess::NotRunning; }

  QTemporaryDir m_folder;
  QTemporaryDir m_temporary;
  QProcessEnvironment m_environment;
  QProcess m_process;
  QString m_output;
};

}  // namespace TestSupport
