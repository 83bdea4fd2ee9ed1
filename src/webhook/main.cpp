#include "webhook/cli/commandline.h"
#include "webhook/cli/output.h"
#include "webhook/process/cleanup.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

// A program that was started from its folder finds what lies beside it without any set-up.
void setDefaultPrefix() {
  if (qEnvironmentVariableIsEmpty("CORVEX_PREFIX")) {
    qputenv("CORVEX_PREFIX", QFileInfo(QCoreApplication::applicationDirPath()).path().toLocal8Bit());
  }
}

}  // namespace

int main(int argc, char** argv) {
  Corvex::Webhook::holdClosedStreams();
  Corvex::Webhook::Cleanup::install();
  QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("corvexweb"));
  QCoreApplication::setApplicationVersion(QStringLiteral(CORVEX_VERSION));
  Corvex::Webhook::makeLogVisible();
  setDefaultPrefix();
  return Corvex::Webhook::runCommandLine(QCoreApplication::arguments());
}
