#include "scripting/scriptresult.h"

namespace Corvex::Scripting {

namespace {

// Of a trace the innermost calls tell what failed, the outermost ones whose fault it was.
const std::size_t mostInnermost = 15;
const std::size_t mostOutermost = 5;

QString counted(int count, const QString& noun) {
  return QStringLiteral("%1 %2%3").arg(count).arg(noun, count == 1 ? QString() : QStringLiteral("s"));
}

}  // namespace

QString ScriptLocation::text() const {
  return line > 0 ? QStringLiteral("%1:%2").arg(file, QString::number(line)) : file;
}

QString traceText(const ScriptTrace& trace) {
  QStringList texts;
  for (std::size_t i = 0; i < trace.size() && i < mostOutermost; ++i) {
    texts << trace[i].text();
  }
  return texts.join(QLatin1String(", called from "));
}

QStringList traceLines(const ScriptTrace& trace) {
  QStringList lines;
  const bool isLong = trace.size() > mostInnermost + mostOutermost;
  for (std::size_t i = 0; i < trace.size(); ++i) {
    if (isLong && i == mostInnermost) {
      const std::size_t omitted = trace.size() - mostInnermost - mostOutermost;
      lines << QStringLiteral("... %1 more").arg(omitted);
      i += omitted;
    }
    const QString call = i == 0 ? QString() : QStringLiteral("called from ");
    const QString& function = trace[i].function;
    lines << call + trace[i].text() + (function.isEmpty() ? QString() : QStringLiteral(" in %1()").arg(function)) +
                 (trace[i].line > 0 ? QLatin1String(": ") + trace[i].sourceLine : QString());
  }
  return lines;
}

QString FailedCheck::fullText() const { return (groups + QStringList(text)).join(QLatin1String(": ")); }

QString Outcome::verdict() const {
  if (!passed()) {
    return QStringLiteral("FAILED");
  }
  return isSkipped ? QStringLiteral("skipped") : QStringLiteral("passed");
}

Outcome ScriptResult::whole() const {
  Outcome all = *this;
  bool isAnyRun = functions.empty();
  for (const FunctionResult& function : functions) {
    isAnyRun = isAnyRun || !function.isSkipped;
    all.checksPassed += function.checksPassed;
    all.failedChecks.insert(all.failedChecks.end(), function.failedChecks.begin(), function.failedChecks.end());
    if (all.error.isEmpty() && !function.error.isEmpty()) {
      all.error = QStringLiteral("%1: %2").arg(function.name, function.error);
      all.trace = function.trace;
    }
  }
  all.isSkipped = isSkipped || !isAnyRun;
  return all;
}

bool ScriptResult::isFlaky() const {
  const Outcome all = whole();
  return attempt > 1 && all.passed() && !all.isSkipped;
}

void RunSummary::add(const ScriptResult& result) {
  const Outcome whole = result.whole();
  durationMs += whole.durationMs;
  if (result.runsAgain) {
    return;
  }
  ++scripts;
  passed += whole.passed() && !whole.isSkipped ? 1 : 0;
  skipped += whole.passed() && whole.isSkipped ? 1 : 0;
  checks += whole.checks();
  flaky += result.isFlaky() ? 1 : 0;
  checksFailed += whole.checksFailed();
}

QString RunSummary::text() const {
  return QStringLiteral("%1: %2 passed%3, %4 failed%5%6; %7, %8 failed; %9 s")
      .arg(counted(scripts + notRun.size(), QStringLiteral("script")))
      .arg(passed)
      .arg(flaky > 0 ? QStringLiteral(" (%1 flaky)").arg(flaky) : QString())
      .arg(failed())
      .arg(skipped > 0 ? QStringLiteral(", %1 skipped").arg(skipped) : QString())
      .arg(notRun.isEmpty() ? QString() : QStringLiteral(", %1 not run").arg(notRun.size()))
      .arg(counted(checks, QStringLiteral("check")))
      .arg(checksFailed)
      .arg(static_cast<double>(durationMs) / 1000.0, 0, 'f', 1);
}

}  // namespace Corvex::Scripting
