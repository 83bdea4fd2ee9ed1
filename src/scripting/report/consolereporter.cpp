#include "scripting/report/consolereporter.h"

#include <QtGlobal>
#include <algorithm>

#include "scripting/report/terminal.h"
#include "shared/textoutput.h"
#include "shared/visibletext.h"

namespace Corvex::Scripting {

namespace {

// As wide as what stands before a text.
const char* const indentation = "          ";

// In levels of groups; deeper ones stay there.
const int deepestIndentation = 8;

QString seconds(qint64 milliseconds) {
  return QStringLiteral("%1s").arg(static_cast<double>(milliseconds) / 1000.0, 7, 'f', 3);
}

}  // namespace

ConsoleReporter::ConsoleReporter(std::FILE* out, Detail detail)
    : m_out(out), m_detail(detail), m_colours(isCapableTerminal(out) && qEnvironmentVariableIsEmpty("NO_COLOR")) {}

void ConsoleReporter::scriptStarted(const QString& path) {
  print(m_attempt > 1 ? QStringLiteral("%1, attempt %2").arg(path).arg(m_attempt) : path);
}

void ConsoleReporter::step(const Step& step) { print(seconds(step.durationMs) + QLatin1String("  ") + step.text); }

void ConsoleReporter::objectCall(const Step& call) {
  if (m_detail == Detail::ObjectCalls) {
    print(seconds(call.durationMs) + QLatin1String("    ") + call.text, Colour::Dim);
  }
}

void ConsoleReporter::check(const Check& check) {
  if (check.passed) {
    print(QLatin1String("  passed  ") + check.text, Colour::Green);
  } else {
    print(QStringLiteral("  FAILED  %1 (%2)").arg(check.text, traceText(check.trace)), Colour::Red);
  }
}

void ConsoleReporter::log(const QString& text) { print(QLatin1String("  log     ") + text); }

void ConsoleReporter::pageMessage(const PageMessage& message) {
  if (message.isUncaught()) {
    log(message.text);
  }
}

void ConsoleReporter::groupStarted(const QString& title) {
  print(QLatin1String("  begin   ") + title);
  ++m_depth;
}

void ConsoleReporter::groupFinished(const QString& title, const QString& error, qint64 durationMs) {
  --m_depth;
  const QString time = seconds(durationMs).trimmed();
  if (error.isEmpty()) {
    print(QStringLiteral("  end     %1 (%2)").arg(title, time));
  } else {
    print(QStringLiteral("  end     %1 (%2) after an error: %3").arg(title, time, error), Colour::Red);
  }
}

void ConsoleReporter::functionStarted(const QString& name) { print(name + QLatin1String("()")); }

void ConsoleReporter::functionFinished(const FunctionResult& result) {
  m_depth = 0;
  printError(result);
  printVerdict(result.name + QLatin1String("()"), result);
}

void ConsoleReporter::scriptFinished(const ScriptResult& result) {
  m_depth = 0;
  // Errors of the functions have been shown.
  printError(result);
  m_attempt = result.runsAgain ? result.attempt + 1 : 1;
  if (result.isFlaky()) {
    print(QStringLiteral("flaky %1 (%2): passed at attempt %3")
              .arg(result.path, seconds(result.durationMs).trimmed())
              .arg(result.attempt),
          Colour::Yellow);
  } else {
    printVerdict(result.path, result.whole());
  }
}

void ConsoleReporter::printError(const Outcome& outcome) {
  if (!outcome.error.isEmpty()) {
    print(QLatin1String("  ERROR   ") + outcome.error, Colour::Red);
    for (const QString& line : traceLines(outcome.trace)) {
      print(QString::fromLatin1(indentation) + line, Colour::Red);
    }
  }
}

void ConsoleReporter::printVerdict(const QString& name, const Outcome& outcome) {
  const QString reason = outcome.skipReason.isEmpty() ? QString() : QLatin1String(": ") + outcome.skipReason;
  print(QStringLiteral("%1 %2 (%3)%4").arg(outcome.verdict(), name, seconds(outcome.durationMs).trimmed(), reason),
        outcome.passed() ? Colour::Green : Colour::Red);
}

void ConsoleReporter::runFinished(const RunSummary& summary) {
  for (const QString& path : summary.notRun) {
    print(QLatin1String("not run ") + path, Colour::Yellow);
  }
  print(summary.text(), summary.failed() > 0 ? Colour::Red : Colour::Green);
}

void ConsoleReporter::print(const QString& text, Colour colour) {
  static const char* const codes[] = {"", "\033[2m", "\033[32m", "\033[33m", "\033[31m"};
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
  const QString depth(2 * std::min(m_depth, deepestIndentation), QLatin1Char(' '));
  visible.replace(QLatin1Char('\n'), QLatin1Char('\n') + QLatin1String(indentation) + depth);
  const QString line = begin + depth + visible + end;
  m_error = writeText(m_out, m_progress ? m_progress->around(line) : line);
  if (m_error && m_outputEnd) {
    m_outputEnd();
  }
}

}  // namespace Corvex::Scripting
