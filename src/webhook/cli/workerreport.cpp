#include "webhook/cli/workerreport.h"

#include "scripting/report/runevents.h"

#include <QJsonDocument>

namespace Corvex::Webhook {

namespace {

QString tooMuch(qint64 bytes) {
  return QStringLiteral("The process of the script was ended, because it told more than %1 MB of it.").arg(bytes >> 20);
}

QString unreadable() {
  return QStringLiteral("The process of the script was ended, because what it told of it cannot be read.");
}

}  // namespace

void WorkerReport::take(const QByteArray& piece) {
  int begin = 0;
  for (int end = piece.indexOf('\n'); end >= 0 && m_fault.isEmpty(); end = piece.indexOf('\n', begin)) {
    takeLine(m_rest + piece.mid(begin, end - begin));
    m_rest.clear();
    begin = end + 1;
  }
  m_rest += piece.mid(begin);
  if (m_fault.isEmpty() && m_rest.size() > m_limits.lineBytes) {
    m_fault = tooMuch(m_limits.lineBytes);
  }
  if (!m_fault.isEmpty()) {
    m_rest.clear();
  }
}

void WorkerReport::takeLine(const QByteArray& line) {
  // What comes after the end belongs to no script.
  if (m_isFinished) {
    return;
  }
  if (m_written + line.size() > m_limits.allBytes) {
    m_fault = tooMuch(m_limits.allBytes);
  } else if (!Scripting::replay(QJsonDocument::fromJson(line).object(), this)) {
    m_fault = unreadable();
  } else if (m_fault.isEmpty()) {
    writeDown(line);
  }
}

void WorkerReport::writeDown(const QByteArray& line) {
  m_written += line.size() + 1;
  if (m_file->write(line + '\n') != line.size() + 1) {
    m_fault = QStringLiteral("The process of the script was ended, because what it told of it cannot be kept: %1.")
                  .arg(m_file->errorString());
  }
}

void WorkerReport::scriptStarted(const QString&) { m_isStarted = true; }

void WorkerReport::check(const Scripting::Check& check) {
  if (check.passed) {
    ++m_result.checksPassed;
  } else {
    m_result.failedChecks.push_back({check.text, check.trace, {}});
  }
}

void WorkerReport::functionStarted(const QString&) { m_body = m_result; }

void WorkerReport::functionFinished(const Scripting::FunctionResult& result) {
  static_cast<Scripting::Outcome&>(m_result) = m_body;
  m_result.functions.push_back(result);
}

void WorkerReport::scriptFinished(const Scripting::ScriptResult& result) {
  m_result = result;
  m_isFinished = true;
}

// That is up to who started it.
void WorkerReport::runFinished(const Scripting::RunSummary&) { m_fault = unreadable(); }

Scripting::ScriptResult WorkerReport::finish(const QString& error) {
  if (m_isFinished) {
    return m_result;
  }
  m_result.path = m_script.path;
  m_result.error = m_fault.isEmpty() ? error : m_fault;
  m_result.trace = {{m_script.path, 0, QString(), QString()}};
  m_result.durationMs = m_time.elapsed();
  m_result.attempt = m_script.attempt;
  m_result.runsAgain = m_script.attempt < m_script.attempts;
  Scripting::EventWriter writer(
      [this](const QJsonObject& event) { writeDown(QJsonDocument(event).toJson(QJsonDocument::Compact)); });
  if (!m_isStarted) {
    writer.scriptStarted(m_script.path);
  }
  writer.scriptFinished(m_result);
  m_isFinished = true;
  return m_result;
}

void replayEvents(QIODevice* file, Scripting::ScriptListener* listener) {
  while (!file->atEnd()) {
    Scripting::replay(QJsonDocument::fromJson(file->readLine()).object(), listener);
  }
}

}  // namespace Corvex::Webhook
