#include "webhook/cli/treecommand.h"

#include "webhook/cli/commandline.h"
#include "webhook/cli/commandoptions.h"
#include "webhook/cli/output.h"
#include "webhook/cli/pagecommand.h"
#include "webhook/inspect/treereport.h"

namespace Corvex::Webhook {

namespace {

const QCommandLineOption depthOption(QStringLiteral("depth"),
                                     QStringLiteral("Show so many levels below each document; all without this."),
                                     QStringLiteral("levels"));
const QCommandLineOption jsonOption(QStringLiteral("json"), QStringLiteral("Write the tree as JSON."));

const char* const description =
    "Shows the objects of a page as scripts see them, a line for each: its class, its name among its siblings, and a\n"
    "name that finds it.\n"
    "\n"
    "The documents of frames stand behind that of the page, each with its own tree. Frames of other origins have "
    "none.\n"
    "\n"
    "Exit code: 0 the tree was read, 1 it could not be read or the page could not be loaded, 2 wrong usage, 3 the\n"
    "browser could not be started or was lost.";

/// False for what is no depth.
bool readDepth(const QCommandLineParser& parser, std::optional<int>* depth) {
  if (!parser.isSet(depthOption)) {
    return true;
  }
  bool isNumber = false;
  *depth = parser.value(depthOption).toInt(&isNumber);
  return isNumber && **depth >= 0;
}

}  // namespace

int treeCommand(const QStringList& arguments) {
  PageCommand command(QString::fromLatin1(description));
  command.parser().addOptions({depthOption, jsonOption});
  if (const std::optional<int> exitCode = command.parse(arguments)) {
    return *exitCode;
  }
  std::optional<int> depth;
  if (!readDepth(command.parser(), &depth)) {
    return wrongUsage(arguments.value(0), QStringLiteral("--depth takes a number of levels from 0 on, not '%1'.")
                                              .arg(command.parser().value(depthOption)));
  }
  if (const std::optional<int> exitCode = command.open()) {
    return *exitCode;
  }
  bool pageLeft = false;
  const QObject watcher;
  QObject::connect(&command.page(), &Connection::documentGone, &watcher, [&pageLeft] { pageLeft = true; });
  const PageTree tree = readTree(*command.browser().windows(), depth);
  const QString why = command.browser().whyNotAskPage();
  if (!why.isEmpty() || pageLeft) {
    return command.fail(why.isEmpty() ? QStringLiteral("The page went to another document while its tree was read. "
                                                       "Use --wait to let it come to rest first.")
                                      : why);
  }
  const int exitCode = printOut(
      command.parser().isSet(jsonOption) ? treeAsJson(tree, command.page().page()->url(), depth) : treeAsText(tree),
      ExitCode::Success);
  return tree.error.isEmpty() ? exitCode : command.fail(tree.error);
}

}  // namespace Corvex::Webhook
