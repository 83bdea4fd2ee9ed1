#pragma once

#include <QString>
#include <QStringList>
#include <memory>

#include "webhook/browsersession.h"
#include "webhook/childprocess.h"
#include "webhook/pipetransport.h"
#include "webhook/temporarydirectory.h"

/// Finding and starting a browser built on Chromium.
namespace Corvex::Webhook::Chromium {

struct Program {
  QString path;
  QString error;  ///< Why there is none, and what to install or set.
};

/// `wanted` is a path or a program's name; "" takes what CORVEX_CHROMIUM names, or the first one that is installed.
Program find(const QString& wanted);

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

/// The end of what the browser wrote to its output, in one line.
QString lastWords(const QString& directory);

}  // namespace Corvex::Webhook::Chromium
