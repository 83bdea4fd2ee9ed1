#pragma once

#include <QString>
#include <QStringList>
#include <memory>

#include "webhook/browser/browsersession.h"
#include "webhook/browser/launchedbrowser.h"
#include "webhook/protocol/transport/pipetransport.h"

/// Finding and starting a browser built on Chromium.
namespace Corvex::Webhook::Chromium {

/// `wanted` is a path or a program's name; "" takes what CORVEX_CHROMIUM names, or the first one that is installed.
FunctionCallResult<QString> find(const QString& wanted);

/// The command line for a profile in `directory`.
QStringList arguments(const QString& directory, const SessionOptions& options);

/// A started browser.
struct Instance {
  std::unique_ptr<LaunchedBrowser> browser;
  std::unique_ptr<PipeTransport> transport;
  QString error;
};
Instance launch(const SessionOptions& options);

}  // namespace Corvex::Webhook::Chromium
