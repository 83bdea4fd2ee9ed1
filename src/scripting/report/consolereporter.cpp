#include "scripting/report/consolereporter.h"

#include <unistd.h>

#include <QtGlobal>

#include "shared/textoutput.h"
#include "shared/visibletext.h"

namespace Corvex::Scripting {

namespace {

// As wide as what stands before a text.
const char* const indentation = "          ";

QString seconds(qint64 milliseconds) {
  return QStringLiteral("%1s").arg(static_cast<double>(milliseconds) / 1000.0, 7, 'f', 3);
}

}  // namespace

ConsoleReporter::ConsoleReporter(std::FILE* out, Detail detail)
    : m_out(out), m_detail(detail), m_colours(isatty(fileno(out)) && qEnvironmentVariableIsEmpty("NO_COLOR")) {}

void ConsoleReporter::scriptStarted(const QString& path) { print(path); }

void ConsoleReporter::step(const QString& text, qint64 durationMs) {
  print(seconds(durationMs) + QLatin1String("  ") + text);
}

void ConsoleReporter::objectCall(const QString& text, qint64 durationMs) {
  if (m_detail == Detail::ObjectCalls) {
    print(seconds(durationMs) + QLatin1String("    ") + text, Colour::Dim);
  }
}

void ConsoleReporter::check(bool passed, const QString& text, const ScriptTrace& trace) {
  if (passed) {
    print(QLatin1String("  passed  ") + text, Colour::Green);
  } else {
    print(QStringLiteral("  FAILED  %1 (%2)").arg(text, traceText(trace)), Colour::Red);
  }
}

void ConsoleReporter::log(const QString& text) { print(QLatin1String("  log     ") + text); }

void ConsoleReporter::scriptFinished(const ScriptResult& result) {
  if (!result.error.isEmpty()) {
    print(QLatin1String("  ERROR   ") + result.error, Colour::Red);
    for (const QString& line : traceLines(result.trace)) {
      print(QString::fromLatin1(indentation) + line, Colour::Red);
    }
  }
  const QString verdict = result.passed() ? QStringLiteral("passed") : QStringLiteral("FAILED");
  print(QStringLiteral("%1 %2 (%3)").arg(verdict, result.path, seconds(result.durationMs).trimmed()),
        result.passed() ? Colour::Green : Colour::Red);
}

void ConsoleReporter::runFinished(const RunSummary& summary) {
  print(summary.text(), summary.failed() > 0 ? Colour::Red : Colour::Green);
}

void ConsoleReporter::print(const QString& text, Colour colour) {
  static const char* const codes[] = {"", "\033[2m", "\033[32m", "\033[31m"};
  if (m_error) {
    return;
  }
  const bool isColoured = m_colours && colour != Colour::Plain;
  const QString begin = QString::fromLatin1(isColoured ? codes[static_cast<int>(colour)] : "");
  const QString end = QString::fromLatin1(isColoured ? "\033[0m\n" : "\n");
  QString visible = visibleText(text);
  while (visible.endsWith(QLatin1Char('\n'))) {
    visible.chop(1);
  }
  visible.replace(QLatin1Char('\n'), QLatin1Char('\n') + QLatin1String(indentation));
  m_error = writeText(m_out, begin + visible + end);
  if (m_error && m_outputEnd) {
    m_outputEnd();
  }
}

}  // namespace Corvex::Scripting
