#include "scripting/report/junitreporter.h"

#include <QFileInfo>
#include <QXmlStreamWriter>
#include <algorithm>

#include "shared/visibletext.h"

namespace Corvex::Scripting {

namespace {

// In levels of groups; deeper ones stay there.
const int deepestIndentation = 8;

QString seconds(qint64 milliseconds) { return QString::number(static_cast<double>(milliseconds) / 1000.0, 'f', 3); }

QString failedChecksText(const Outcome& result) {
  QString text;
  for (const FailedCheck& check : result.failedChecks) {
    text += traceText(check.trace) + QLatin1String(": ") + check.fullText() + QLatin1Char('\n');
  }
  return text;
}

void attribute(QXmlStreamWriter* xml, const char* name, const QString& value) {
  xml->writeAttribute(QString::fromLatin1(name), visibleText(value));
}

void writeProblem(QXmlStreamWriter* xml, const char* element, const char* type, const QString& message,
                  const QString& text) {
  xml->writeStartElement(QString::fromLatin1(element));
  attribute(xml, "type", QString::fromLatin1(type));
  attribute(xml, "message", message);
  xml->writeCharacters(visibleText(text));
  xml->writeEndElement();
}

QString problemMessage(const Outcome& result) {
  return result.error.isEmpty()
             ? QStringLiteral("%1 of %2 checks failed").arg(result.checksFailed()).arg(result.checks())
             : result.error;
}

QString problemText(const Outcome& result) {
  const QString trace =
      result.error.isEmpty() ? QString() : traceLines(result.trace).join(QLatin1Char('\n')) + QLatin1Char('\n');
  return trace + failedChecksText(result);
}

void writeProblems(QXmlStreamWriter* xml, const Outcome& result) {
  if (!result.error.isEmpty()) {
    writeProblem(xml, "error", "ScriptError", problemMessage(result), problemText(result));
  } else if (!result.passed()) {
    writeProblem(xml, "failure", "Check", problemMessage(result), problemText(result));
  } else if (result.isSkipped) {
    xml->writeEmptyElement(QStringLiteral("skipped"));
    attribute(xml, "message", result.skipReason);
  }
}

/// Of an attempt before the last one.
void writeEarlierProblem(QXmlStreamWriter* xml, const Outcome& result, bool isFlaky, const QString& output) {
  const bool isError = !result.error.isEmpty();
  const QString kind = isFlaky ? QStringLiteral("flaky") : QStringLiteral("rerun");
  xml->writeStartElement(kind + (isError ? QStringLiteral("Error") : QStringLiteral("Failure")));
  attribute(xml, "type", isError ? QStringLiteral("ScriptError") : QStringLiteral("Check"));
  attribute(xml, "message", problemMessage(result));
  xml->writeTextElement(QStringLiteral("stackTrace"), visibleText(problemText(result)));
  if (!output.isEmpty()) {
    xml->writeTextElement(QStringLiteral("system-out"), visibleText(output));
  }
  xml->writeEndElement();
}

}  // namespace

QString JUnitReporter::open() {
  if (m_file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
    write();
    return m_error;
  }
  return QStringLiteral(
             "Cannot write the JUnit file '%1': %2. Choose a file in a "
             "directory that exists and that you may write to.")
      .arg(m_file.fileName(), m_file.errorString());
}

// Until the next attempt begins, a run that is cut off shows the one before.
void JUnitReporter::takeEarlierAttempts() {
  const auto first = m_cases.begin() + static_cast<std::ptrdiff_t>(m_firstOfScript);
  if (m_runsAgain) {
    m_earlier.insert(m_earlier.end(), first, m_cases.end());
    m_cases.erase(first, m_cases.end());
  } else {
    m_earlier.clear();
    m_firstOfScript = m_cases.size();
  }
  m_runsAgain = false;
}

void JUnitReporter::addCase(const Case& one) {
  m_cases.push_back(one);
  for (const Case& earlier : m_earlier) {
    if (earlier.name == one.name && !earlier.outcome.passed()) {
      m_cases.back().earlier.push_back(earlier);
    }
  }
}

void JUnitReporter::scriptStarted(const QString& path) {
  takeEarlierAttempts();
  m_script = path;
  m_output.clear();
  m_outputOfBody.clear();
  m_depth = 0;
}

void JUnitReporter::addLine(const QString& text) {
  m_output += QString(2 * std::min(m_depth, deepestIndentation), QLatin1Char(' ')) + text + QLatin1Char('\n');
}

void JUnitReporter::check(const Check& check) {
  addLine(QStringLiteral("%1 %2 (%3)")
              .arg(check.passed ? QStringLiteral("passed") : QStringLiteral("FAILED"), check.text,
                   check.trace.empty() ? QString() : check.trace.front().text()));
}

void JUnitReporter::log(const QString& text) { addLine(text); }

void JUnitReporter::pageMessage(const PageMessage& message) {
  if (message.isUncaught()) {
    addLine(message.text);
  }
}

void JUnitReporter::groupStarted(const QString& title) {
  addLine(QStringLiteral("begin %1").arg(title));
  ++m_depth;
}

void JUnitReporter::groupFinished(const QString& title, const QString& error, qint64 durationMs) {
  --m_depth;
  const QString why = error.isEmpty() ? QString() : QStringLiteral(" after an error: ") + error;
  addLine(QStringLiteral("end %1 (%2s)%3").arg(title, seconds(durationMs), why));
}

void JUnitReporter::functionStarted(const QString&) {
  m_outputOfBody += m_output;
  m_output.clear();
  m_depth = 0;
}

void JUnitReporter::functionFinished(const FunctionResult& result) {
  addCase({m_script, result.name, result, m_output});
  m_output.clear();
  write();
}

void JUnitReporter::scriptFinished(const ScriptResult& result) {
  m_outputOfBody += m_output;
  Outcome body = result;
  for (const FunctionResult& function : result.functions) {
    body.durationMs -= function.durationMs;
  }
  const bool hadCase =
      std::any_of(m_earlier.begin(), m_earlier.end(), [this](const Case& earlier) { return earlier.name == m_script; });
  if (result.functions.empty() || !body.passed() || body.checks() > 0 || !m_outputOfBody.isEmpty() || hadCase) {
    addCase({m_script, m_script, body, m_outputOfBody});
  }
  m_runsAgain = result.runsAgain;
  write();
}

void JUnitReporter::write() {
  const QByteArray text = document();
  const bool isWritten = m_file.resize(0) && m_file.seek(0) && m_file.write(text) == text.size() && m_file.flush();
  if (!isWritten) {
    m_error = QStringLiteral("Cannot write the JUnit file '%1': %2.").arg(m_file.fileName(), m_file.errorString());
  }
}

void JUnitReporter::writeCase(QXmlStreamWriter* xml, const Case& one) {
  xml->writeStartElement(QStringLiteral("testcase"));
  attribute(xml, "name", one.name);
  attribute(xml, "classname", QFileInfo(one.script).completeBaseName());
  attribute(xml, "assertions", QString::number(one.outcome.checks()));
  attribute(xml, "time", seconds(one.outcome.durationMs));
  writeProblems(xml, one.outcome);
  for (const Case& earlier : one.earlier) {
    writeEarlierProblem(xml, earlier.outcome, one.outcome.passed(), earlier.output);
  }
  if (!one.output.isEmpty()) {
    xml->writeTextElement(QStringLiteral("system-out"), visibleText(one.output));
  }
  xml->writeEndElement();
}

QByteArray JUnitReporter::document() const {
  int errors = 0;
  int failures = 0;
  int skipped = 0;
  qint64 durationMs = 0;
  for (const Case& one : m_cases) {
    errors += one.outcome.error.isEmpty() ? 0 : 1;
    failures += one.outcome.error.isEmpty() && !one.outcome.passed() ? 1 : 0;
    skipped += one.outcome.passed() && one.outcome.isSkipped ? 1 : 0;
    durationMs += one.outcome.durationMs;
  }
  QByteArray text;
  QXmlStreamWriter xml(&text);
  xml.setAutoFormatting(true);
  xml.writeStartDocument();
  xml.writeStartElement(QStringLiteral("testsuites"));
  xml.writeStartElement(QStringLiteral("testsuite"));
  attribute(&xml, "name", QStringLiteral("corvexweb"));
  attribute(&xml, "tests", QString::number(m_cases.size()));
  attribute(&xml, "failures", QString::number(failures));
  attribute(&xml, "errors", QString::number(errors));
  attribute(&xml, "skipped", QString::number(skipped));
  attribute(&xml, "time", seconds(durationMs));
  for (const Case& one : m_cases) {
    writeCase(&xml, one);
  }
  xml.writeEndDocument();
  return text;
}

}  // namespace Corvex::Scripting
