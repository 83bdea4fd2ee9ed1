#include "scripting/report/progressline.h"

#include "scripting/report/terminal.h"
#include "shared/textoutput.h"
#include "shared/visibletext.h"

namespace Corvex::Scripting {

namespace {

const int refreshMs = 1000;

// To the line's beginning, and all of it gone.
const char* const erasure = "\r\033[K";

QString minutes(qint64 milliseconds) {
  const qint64 seconds = milliseconds / 1000;
  return QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

}  // namespace

ProgressLine::ProgressLine(std::FILE* out, int scripts)
    : m_out(out), m_isOn(isCapableTerminal(out)), m_scripts(scripts) {
  m_time.start();
  QObject::connect(&m_timer, &QTimer::timeout, [this] { show(); });
}

ProgressLine::~ProgressLine() { hide(); }

void ProgressLine::scriptStarted(const QString& path) {
  m_running << path;
  show();
}

void ProgressLine::scriptFinished(const ScriptResult& result) {
  m_running.removeOne(result.path);
  m_finished += result.runsAgain ? 0 : 1;
  show();
}

void ProgressLine::runFinished(const RunSummary&) {
  m_timer.stop();
  hide();
  m_isOn = false;
}

QString ProgressLine::text() const {
  if (!m_isOn || m_running.isEmpty()) {
    return QString();
  }
  const QString line = QStringLiteral("[%1/%2] %3 %4")
                           .arg(m_finished + m_running.size())
                           .arg(m_scripts)
                           .arg(minutes(m_time.elapsed()), m_running.join(QLatin1String(", ")));
  // In a full line some terminals go on to the next one.
  return cutToWidth(visibleText(line, LineBreaks::Shown), terminalWidth(m_out) - 1);
}

QString ProgressLine::around(const QString& lines) {
  const QString before = m_isShown ? QString::fromLatin1(erasure) : QString();
  const QString after = text();
  m_isShown = !after.isEmpty();
  return before + lines + after;
}

const char* ProgressLine::farewell() const { return m_isOn ? erasure : nullptr; }

void ProgressLine::hide() {
  if (m_isShown) {
    writeText(m_out, QString::fromLatin1(erasure));
    m_isShown = false;
  }
}

void ProgressLine::show() {
  if (!m_isOn) {
    return;
  }
  writeText(m_out, around(QString()));
  if (!m_timer.isActive()) {
    m_timer.start(refreshMs);
  }
}

}  // namespace Corvex::Scripting
