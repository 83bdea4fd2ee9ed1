#pragma once

#include <QStringList>

namespace Corvex::Webhook {

/// Exit codes of the program.
namespace ExitCode {
enum Value {
  Success = 0,
  Failed = 1,  ///< A script failed, a page could not be looked at, or the results could not be written.
  WrongUsage = 2,
  BrowserFailed = 3,  ///< The browser could not be started, or was lost.
};
}

/// Runs the command that the arguments name; `arguments` holds the program's name first. Answers an `ExitCode`.
int runCommandLine(const QStringList& arguments);

}  // namespace Corvex::Webhook
