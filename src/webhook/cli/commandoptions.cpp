#include "webhook/cli/commandoptions.h"

#include "webhook/cli/commandline.h"
#include "webhook/cli/output.h"

namespace Corvex::Webhook {

std::optional<int> parseOptions(QCommandLineParser& parser, const QStringList& arguments) {
  const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help."));
  parser.addOption(help);
  const QString command = arguments.value(0);
  if (!parser.parse(arguments)) {
    return wrongUsage(command, parser.errorText());
  }
  if (parser.isSet(help)) {
    // Qt names the program alone in its usage line.
    const QString text = parser.helpText().replace(QLatin1String("[options]"), command + QLatin1String(" [options]"));
    return printOut(text, ExitCode::Success);
  }
  return std::nullopt;
}

int wrongUsage(const QString& command, const QString& complaint) {
  const QString sentence = complaint.endsWith(QLatin1Char('.')) ? complaint : complaint + QLatin1Char('.');
  printError(QStringLiteral("corvexweb %1: %2 See corvexweb %1 --help.\n").arg(command, sentence));
  return ExitCode::WrongUsage;
}

}  // namespace Corvex::Webhook
