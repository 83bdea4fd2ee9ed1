#pragma once

#include "scripting/report/consolereporter.h"
#include "scripting/report/htmlreporter.h"
#include "scripting/report/junitreporter.h"
#include "scripting/report/progressline.h"
#include "webhook/cli/lastfailed.h"
#include "webhook/cli/runoptions.h"

#include <QString>

#include <functional>

namespace Corvex::Webhook {

/// All that a run leaves: on the terminal, in files, and for the next run.
class RunReports {
public:
  explicit RunReports(const RunOptions& options);
  ~RunReports();

  /// To be called before anything runs. Answers why a file cannot be written, or an empty text.
  QString open();

  /// For runs of one script after the other.
  Scripting::ScriptListener& all() { return m_all; }
  // For those of scripts side by side: what is shown of a script once it has ended, what follows the run as it goes,
  // and what holds the scripts in their order.
  Scripting::ScriptListener& shown() { return m_shown; }
  Scripting::ScriptListener& followed() { return m_progress; }
  Scripting::ScriptListener& files() { return m_files; }

  /// Called once when nobody reads what is shown any more.
  void setOutputEnd(const std::function<void()>& outputEnd) { m_console.setOutputEnd(outputEnd); }

  /// To be called when the run is over. Complains about what could not be written, and answers the exit code.
  int close(int exitCode);

private:
  RunOptions m_options;
  Scripting::ProgressLine m_progress;
  Scripting::ConsoleReporter m_console;
  Scripting::JUnitReporter m_junit;
  Scripting::HtmlReporter m_report;
  LastFailed m_lastFailed;
  Scripting::ListenerGroup m_shown;
  Scripting::ListenerGroup m_files;
  Scripting::ListenerGroup m_all;
};

}  // namespace Corvex::Webhook
