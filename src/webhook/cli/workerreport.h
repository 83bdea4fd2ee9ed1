#pragma once

#include "scripting/engine/scriptengine.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QIODevice>
#include <QString>

namespace Corvex::Webhook {

/// What a worker tells of an attempt at a script: lines of JSON, in whatever pieces they come. They are written down,
/// and told again when it is their turn.
class WorkerReport : private Scripting::ScriptListener {
public:
  /// More than that is a fault. A line may hold a picture of a whole page.
  struct Limits {
    int lineBytes = 64 << 20;
    qint64 allBytes = 256 << 20;
  };

  /// Borrows `file`.
  WorkerReport(const Scripting::ScriptChoice& script, QIODevice* file) : WorkerReport(script, file, Limits()) {}
  WorkerReport(const Scripting::ScriptChoice& script, QIODevice* file, const Limits& limits)
      : m_script(script), m_file(file), m_limits(limits) {
    m_time.start();
  }

  void take(const QByteArray& piece);

  /// Why the worker is not to be listened to any more, as a sentence; empty when all is well. It does not change back.
  const QString& fault() const { return m_fault; }

  /// To be called once the worker has ended. An attempt that it has not told the end of ends with this error, or with
  /// the fault, and with what is known of it; that is written down, too.
  Scripting::ScriptResult finish(const QString& error);

private:
  void takeLine(const QByteArray& line);
  void writeDown(const QByteArray& line);

  void scriptStarted(const QString& path) override;
  void check(const Scripting::Check& check) override;
  void functionStarted(const QString& name) override;
  void functionFinished(const Scripting::FunctionResult& result) override;
  void scriptFinished(const Scripting::ScriptResult& result) override;
  void runFinished(const Scripting::RunSummary& summary) override;

  Scripting::ScriptChoice m_script;
  QIODevice* m_file;
  Limits m_limits;
  QElapsedTimer m_time;
  QByteArray m_rest;
  qint64 m_written = 0;
  QString m_fault;
  bool m_isStarted = false;
  bool m_isFinished = false;
  Scripting::ScriptResult m_result;
  /// That of the body, while a function runs.
  Scripting::Outcome m_body;
};

/// Tells the listener of what was written down in `file`, from where it stands on.
void replayEvents(QIODevice* file, Scripting::ScriptListener* listener);

}  // namespace Corvex::Webhook
