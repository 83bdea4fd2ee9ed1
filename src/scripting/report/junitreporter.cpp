#include "scripting/report/junitreporter.h"

#include <QFileInfo>
#include <QXmlStreamWriter>

#include "shared/visibletext.h"

namespace Corvex::Scripting {

namespace {

QString seconds(qint64 milliseconds) { return QString::number(static_cast<double>(milliseconds) / 1000.0, 'f', 3); }

QString failedChecksText(const ScriptResult& result) {
  QString text;
  for (const FailedCheck& check : result.failedChecks) {
    text += traceText(check.trace) + QLatin1String(": ") + check.text + QLatin1Char('\n');
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

void writeCase(QXmlStreamWriter* xml, const ScriptResult& result, const QString& output) {
  xml->writeStartElement(QStringLiteral("testcase"));
  attribute(xml, "name", result.path);
  attribute(xml, "classname", QFileInfo(result.path).completeBaseName());
  attribute(xml, "assertions", QString::number(result.checks()));
  attribute(xml, "time", seconds(result.durationMs));
  if (!result.error.isEmpty()) {
    writeProblem(xml, "error", "ScriptError", result.error,
                 traceLines(result.trace).join(QLatin1Char('\n')) + QLatin1Char('\n') + failedChecksText(result));
  } else if (!result.passed()) {
    writeProblem(xml, "failure", "Check",
                 QStringLiteral("%1 of %2 checks failed").arg(result.checksFailed()).arg(result.checks()),
                 failedChecksText(result));
  }
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

void JUnitReporter::scriptStarted(const QString&) { m_output.clear(); }

void JUnitReporter::log(const QString& text) { m_output += text + QLatin1Char('\n'); }

void JUnitReporter::scriptFinished(const ScriptResult& result) {
  m_cases.push_back({result, m_output});
  write();
}

void JUnitReporter::write() {
  const QByteArray text = document();
  const bool isWritten = m_file.resize(0) && m_file.seek(0) && m_file.write(text) == text.size() && m_file.flush();
  if (!isWritten) {
    m_error = QStringLiteral("Cannot write the JUnit file '%1': %2.").arg(m_file.fileName(), m_file.errorString());
  }
}

QByteArray JUnitReporter::document() const {
  int errors = 0;
  int failures = 0;
  qint64 durationMs = 0;
  for (const Case& one : m_cases) {
    errors += one.result.error.isEmpty() ? 0 : 1;
    failures += one.result.error.isEmpty() && !one.result.passed() ? 1 : 0;
    durationMs += one.result.durationMs;
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
  attribute(&xml, "time", seconds(durationMs));
  for (const Case& one : m_cases) {
    writeCase(&xml, one.result, one.output);
  }
  xml.writeEndDocument();
  return text;
}

}  // namespace Corvex::Scripting
