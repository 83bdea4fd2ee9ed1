#include "webhook/cli/hookscriptcommand.h"

#include "webhook/cli/commandline.h"
#include "webhook/cli/commandoptions.h"
#include "webhook/cli/output.h"
#include "wrappers/web/setup/getjscode.h"
#include "wrappers/web/setup/wrapperconfig.h"

namespace Corvex::Webhook {

int hookScriptCommand(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Prints the script that hooks a page."));
  const QCommandLineOption prelude(QStringLiteral("prelude"),
                                   QStringLiteral("Print the text that has to run in the page before the script."));
  parser.addOption(prelude);
  if (const std::optional<int> exitCode = parseOptions(parser, arguments)) {
    return *exitCode;
  }
  if (!parser.positionalArguments().isEmpty()) {
    return wrongUsage(arguments.value(0), QStringLiteral("It takes no arguments."));
  }
  return printOut(parser.isSet(prelude) ? WebWrapper::getCorvexJsNamespaceInitCode()
                                        : WebWrapper::getJSCode(WebWrapper::FileSystemBasedConfig()),
                  ExitCode::Success);
}

}  // namespace Corvex::Webhook
