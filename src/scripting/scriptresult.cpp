#include "scripting/scriptresult.h"

namespace Corvex::Scripting {

namespace {

QString counted(int count, const QString& noun) {
  return QStringLiteral("%1 %2%3").arg(count).arg(noun, count == 1 ? QString() : QStringLiteral("s"));
}

}  // namespace

QString ScriptLocation::text() const {
  return line > 0 ? QStringLiteral("%1:%2").arg(file, QString::number(line)) : file;
}

void RunSummary::add(const ScriptResult& result) {
  ++scripts;
  passed += result.passed() ? 1 : 0;
  checks += result.checks();
  checksFailed += result.checksFailed();
  durationMs += result.durationMs;
}

QString RunSummary::text() const {
  return QStringLiteral("%1: %2 passed, %3 failed; %4, %5 failed; %6 s")
      .arg(counted(scripts, QStringLiteral("script")))
      .arg(passed)
      .arg(failed())
      .arg(counted(checks, QStringLiteral("check")))
      .arg(checksFailed)
      .arg(static_cast<double>(durationMs) / 1000.0, 0, 'f', 1);
}

}  // namespace Corvex::Scripting
