#pragma once

#include <QFile>
#include <vector>

#include "scripting/scriptlistener.h"

class QXmlStreamWriter;

namespace Corvex::Scripting {

/// Writes the results as a JUnit XML file, in which each script is a test case.
/// The file is complete after every script, so that it also tells of a run
/// that was cut off.
class CORVEXSCRIPTING_EXPORT JUnitReporter : public ScriptListener {
public:
  explicit JUnitReporter(const QString& path) : m_file(path) {}

  /// Makes the file. Answers an error that names it, or an empty text. To be
  /// called before anything runs.
  QString open();
  /// What went wrong when the results were written; empty when nothing did.
  const QString& error() const { return m_error; }

  void scriptStarted(const QString& path) override;
  void log(const QString& text) override;
  void scriptFinished(const ScriptResult& result) override;

private:
  struct Case {
    ScriptResult result;
    QString output;
  };

  void write();
  QByteArray document() const;

  QFile m_file;
  QString m_error;
  QString m_output;
  std::vector<Case> m_cases;
};

}  // namespace Corvex::Scripting
