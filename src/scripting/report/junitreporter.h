#pragma once

#include <QFile>
#include <vector>

#include "scripting/scriptlistener.h"

class QXmlStreamWriter;

namespace Corvex::Scripting {

/// Writes the results as a JUnit XML file, in which each script is a test case, with its checks and what it logged as
/// its output. One with test functions has a case for each of them instead, and one for its body where that did more
/// than to define them. Attempts that failed before the last one stand in its cases, as `flakyFailure` and `flakyError`
/// where that passed, and as `rerunFailure` and `rerunError` where not. The file is complete after every script, so
/// that it also tells of a run that was cut off.
class CORVEXSCRIPTING_EXPORT JUnitReporter : public ScriptListener {
public:
  explicit JUnitReporter(const QString& path) : m_file(path) {}

  /// Makes the file. Answers an error that names it, or an empty text. To be
  /// called before anything runs.
  QString open();
  /// What went wrong when the results were written; empty when nothing did.
  const QString& error() const { return m_error; }

  void scriptStarted(const QString& path) override;
  void check(const Check& check) override;
  void log(const QString& text) override;
  void pageMessage(const PageMessage& message) override;
  void groupStarted(const QString& title) override;
  void groupFinished(const QString& title, const QString& error, qint64 durationMs) override;
  void functionStarted(const QString& name) override;
  void functionFinished(const FunctionResult& result) override;
  void scriptFinished(const ScriptResult& result) override;

private:
  struct Case {
    QString script;
    QString name;
    Outcome outcome;
    QString output;
    /// What came of it in attempts that failed.
    std::vector<Case> earlier = {};
  };

  void write();
  QByteArray document() const;
  static void writeCase(QXmlStreamWriter* xml, const Case& one);
  void addLine(const QString& text);
  void addCase(const Case& one);
  void takeEarlierAttempts();

  QFile m_file;
  QString m_error;
  QString m_script;
  /// What the running function, or the body, has written.
  QString m_output;
  QString m_outputOfBody;
  int m_depth = 0;
  std::vector<Case> m_cases;
  /// Where those of the running script begin.
  std::size_t m_firstOfScript = 0;
  bool m_runsAgain = false;
  std::vector<Case> m_earlier;
};

}  // namespace Corvex::Scripting
