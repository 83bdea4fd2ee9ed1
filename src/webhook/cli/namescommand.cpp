#include "webhook/cli/namescommand.h"

#include "webhook/cli/commandline.h"
#include "webhook/cli/output.h"
#include "webhook/cli/pagecommand.h"
#include "webhook/inspect/namesreport.h"

namespace Corvex::Webhook {

namespace {

const QCommandLineOption allOption(QStringLiteral("all"), QStringLiteral("List the elements that are found, too."));
const QCommandLineOption jsonOption(QStringLiteral("json"), QStringLiteral("Write the result as JSON."));

const char* const description =
    "Names every element of a page, searches for each name, and tells which elements the search does not find again.\n"
    "\n"
    "A line holds the outcome, the rule that made the name, the name, the element's tag and, where it was not found,\n"
    "why. Outcomes: 'found'; 'as link', the name stands for the link around the element; 'by rule', the rules of "
    "naming\n"
    "cannot tell the element from another one; 'LOST', a fault.\n"
    "\n"
    "Exit code: 0 no element is lost but by rule, 1 some are or the page could not be loaded, 2 wrong usage, 3 the\n"
    "browser could not be started or was lost.";

}  // namespace

int namesCommand(const QStringList& arguments) {
  PageCommand command(QString::fromLatin1(description));
  command.parser().addOptions({allOption, jsonOption});
  if (const std::optional<int> exitCode = command.parse(arguments)) {
    return *exitCode;
  }
  if (const std::optional<int> exitCode = command.open()) {
    return *exitCode;
  }
  const NamesCheck check = checkNames(command.page(), 0);
  if (!check.error.isEmpty()) {
    return command.fail(QStringLiteral("The elements of the page could not be read: %1").arg(check.error));
  }
  const NamesListed listed = command.parser().isSet(allOption) ? NamesListed::All : NamesListed::NotFoundOnes;
  return printOut(command.parser().isSet(jsonOption) ? namesReportAsJson(check, listed) : namesReport(check, listed),
                  namesAreGood(check) ? ExitCode::Success : ExitCode::Failed);
}

}  // namespace Corvex::Webhook
