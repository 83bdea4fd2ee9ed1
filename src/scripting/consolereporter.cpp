#include "scripting/consolereporter.h"

#include <unistd.h>

#include <QtGlobal>

namespace Corvex::Scripting {

namespace {

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

void ConsoleReporter::check(bool passed, const QString& text, const ScriptLocation& location) {
  if (passed) {
    print(QLatin1String("  passed  ") + text, Colour::Green);
  } else {
    print(QStringLiteral("  FAILED  %1 (%2)").arg(text, location.text()), Colour::Red);
  }
}

void ConsoleReporter::log(const QString& text) { print(QLatin1String("  log     ") + text); }

void ConsoleReporter::scriptFinished(const ScriptResult& result) {
  if (!result.error.isEmpty()) {
    print(QLatin1String("  ERROR   ") + result.error, Colour::Red);
    if (result.location.line > 0) {
      print(QStringLiteral("          %1: %2").arg(result.location.text(), result.sourceLine), Colour::Red);
    }
  }
  const QString verdict = result.passed() ? QStringLiteral("passed") : QStringLiteral("FAILED");
  print(QStringLiteral("%1 %2 (%3)").arg(verdict, result.path, seconds(result.durationMs).trimmed()),
        result.passed() ? Colour::Green : Colour::Red);
}

void ConsoleReporter::runFinished(const RunSummary& summary) {
  print(summary.text(), summary.failed() > 0 ? Colour::Red : Colour::Green);
}

void ConsoleReporter::print(const QString& line, Colour colour) {
  static const char* const codes[] = {"", "\033[2m", "\033[32m", "\033[31m"};
  const bool coloured = m_colours && colour != Colour::Plain;
  const char* code = coloured ? codes[static_cast<int>(colour)] : "";
  std::fprintf(m_out, "%s%s%s\n", code, line.toUtf8().constData(), coloured ? "\033[0m" : "");
  std::fflush(m_out);
}

}  // namespace Corvex::Scripting
