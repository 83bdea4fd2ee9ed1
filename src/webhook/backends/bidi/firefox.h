#pragma once

#include <QDeadlineTimer>
#include <QString>
#include <QStringList>
#include <memory>

#include "webhook/browser/browsersession.h"
#include "webhook/browser/launchedbrowser.h"

/// Finding and starting Firefox.
namespace Corvex::Webhook::Firefox {

/// Whether `browser`, as it was asked for, is Firefox: by its name, or by the name of the program at that path.
bool isMeant(const QString& browser);

/// `wanted` is a path or a program's name; "firefox" takes what CORVEX_FIREFOX names, or the first one that is
/// installed.
FunctionCallResult<QString> find(const QString& wanted);

/// The command line for a profile in `directory`.
QStringList arguments(const QString& directory, const SessionOptions& options);

/// A started browser.
struct Instance {
  std::unique_ptr<LaunchedBrowser> browser;
  QString address;  ///< ws://... where it takes connections from this machine.
  QString error;
};

/// Waits until the browser takes connections, until `deadline` at the most.
Instance launch(const SessionOptions& options, const QDeadlineTimer& deadline);

}  // namespace Corvex::Webhook::Firefox
