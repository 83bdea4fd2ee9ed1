#pragma once

#include "webhook/cli/workerreport.h"
#include "webhook/process/childprocess.h"
#include "webhook/process/pipereader.h"
#include "webhook/process/temporarydirectory.h"

#include <QElapsedTimer>
#include <QIODevice>
#include <QStringList>

#include <memory>

namespace Corvex::Webhook {

/// An attempt at a script in a process of its own. The process, its browsers and its files go with this object.
class Worker {
public:
  /// What `arguments` start tells the script's events by the descriptor of workers. They are written to `file`, which
  /// is borrowed.
  Worker(const QString& program, const QStringList& arguments, const Scripting::ScriptChoice& script, QIODevice* file);

  /// Removes what workers of runs that were killed have left.
  static void removeAbandoned();

  /// Whether there is a result. Serves no events.
  bool hasEnded();

  /// Ends what is left of the process, and tells what came of the attempt.
  Scripting::ScriptResult finish();
  /// The exit code of the process, if it has one, after finish().
  std::optional<int> exitCode() const { return m_exitCode; }
  /// What the process wrote to its standard streams: complaints and warnings.
  QString words() const;

private:
  QString start(const QString& program, const QStringList& arguments);
  void takeWords(const QByteArray& piece);

  WorkerReport m_report;
  TemporaryDirectory m_directory;
  std::unique_ptr<PipeReader> m_events;
  std::unique_ptr<PipeReader> m_output;
  std::unique_ptr<ChildProcess> m_process;
  /// Since nobody can write events any more.
  QElapsedTimer m_silence;
  QByteArray m_words;
  bool m_isCut = false;
  QString m_startError;
  std::optional<int> m_exitCode;
};

}  // namespace Corvex::Webhook
