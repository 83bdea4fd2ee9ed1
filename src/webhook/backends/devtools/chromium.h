#pragma once

#include <QString>
#include <QStringList>
#include <memory>

#include "webhook/browser/browserprogram.h"
#include "webhook/browser/browsersession.h"
#include "webhook/process/childprocess.h"
#include "webhook/process/temporarydirectory.h"
#include "webhook/protocol/pipetransport.h"

/// Finding and starting a browser built on Chromium.
namespace Corvex::Webhook::Chromium {

/// `wanted` is a path or a program's name; "" takes what CORVEX_CHROMIUM names, or the first one that is installed.
FunctionCallResult<QString> find(const QString& wanted);

/// The command line for a profile in `directory`.
QStringList arguments(const QString& directory, const SessionOptions& options);

/// A started browser. Its files, temporary ones and its output lie in the directory.
struct Instance {
  std::unique_ptr<TemporaryDirectory> directory;
  std::unique_ptr<ChildProcess> process;
  std::unique_ptr<PipeTransport> transport;
  QString error;
};
Instance launch(const SessionOptions& options);

}  // namespace Corvex::Webhook::Chromium
