#include "webhook/cli/runreports.h"

#include "webhook/cli/commandline.h"
#include "webhook/cli/output.h"
#include "webhook/cli/runfacts.h"
#include "webhook/inspect/dumpfile.h"
#include "webhook/process/cleanup.h"

namespace Corvex::Webhook {

namespace {

/// Whether there was anything to complain about.
bool complain(const QString& error) {
  if (!error.isEmpty()) {
    printError(QStringLiteral("corvexweb run: %1\n").arg(error));
  }
  return !error.isEmpty();
}

}  // namespace

RunReports::RunReports(const RunOptions& options)
    : m_options(options),
      m_progress(stdout, int(options.scripts.size())),
      m_console(stdout, options.verbose ? Scripting::ConsoleReporter::Detail::ObjectCalls
                                        : Scripting::ConsoleReporter::Detail::Steps),
      m_junit(options.junitFile),
      m_report(options.reportFile, dumpViewer()) {
  m_console.setProgress(&m_progress);
  m_shown.add(&m_console);
  m_shown.add(&m_lastFailed);
  if (!options.junitFile.isEmpty()) {
    m_files.add(&m_junit);
  }
  if (!options.reportFile.isEmpty()) {
    m_files.add(&m_report);
  }
  m_all.add(&m_shown);
  m_all.add(&m_progress);
  m_all.add(&m_files);
  // What cannot be read is written anew.
  m_lastFailed.read();
  beforeErrors([this] { m_progress.hide(); });
  Cleanup::setFarewell(m_progress.farewell());
}

RunReports::~RunReports() {
  beforeErrors(nullptr);
  Cleanup::setFarewell(nullptr);
}

QString RunReports::open() {
  QString error = m_options.junitFile.isEmpty() ? QString() : m_junit.open();
  if (error.isEmpty() && !m_options.reportFile.isEmpty()) {
    error = m_report.open();
    m_report.environment(runFacts(m_options.ownArguments));
  }
  return error;
}

int RunReports::close(int exitCode) {
  complain(m_lastFailed.save());
  const bool isJUnitLost = complain(m_junit.error());
  const bool isIncomplete = complain(m_report.error()) || isJUnitLost;
  const int code = isIncomplete && exitCode == ExitCode::Success ? int(ExitCode::Failed) : exitCode;
  return m_console.error() ? outputFailed(m_console.error(), code) : code;
}

}  // namespace Corvex::Webhook
