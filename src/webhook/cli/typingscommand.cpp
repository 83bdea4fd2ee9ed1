#include "webhook/cli/typingscommand.h"

#include "webhook/cli/commandline.h"
#include "webhook/cli/commandoptions.h"
#include "webhook/cli/output.h"
#include "webhook/pages/webmodel.h"
#include "webhook/typings/typings.h"

namespace Corvex::Webhook {

int typingsCommand(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral(
      "Prints the functions and classes of test scripts as a TypeScript declaration file, by which editors "
      "complete and check scripts."));
  if (const std::optional<int> exitCode = parseOptions(parser, arguments)) {
    return *exitCode;
  }
  if (!parser.positionalArguments().isEmpty()) {
    return wrongUsage(arguments.value(0), QStringLiteral("It takes no arguments, and prints to the standard output."));
  }
  const WebModel model;
  return printOut(typings(), ExitCode::Success);
}

}  // namespace Corvex::Webhook
