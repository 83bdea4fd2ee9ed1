#include "webhook/cli/commandline.h"

#include "webhook/cli/dumpcommand.h"
#include "webhook/cli/hookscriptcommand.h"
#include "webhook/cli/namescommand.h"
#include "webhook/cli/output.h"
#include "webhook/cli/pickcommand.h"
#include "webhook/cli/recordcommand.h"
#include "webhook/cli/runcommand.h"
#include "webhook/cli/treecommand.h"
#include "webhook/cli/typingscommand.h"

#include <QCoreApplication>

namespace Corvex::Webhook {

namespace {

struct Command {
  const char* name;
  const char* summary;
  int (*run)(const QStringList& arguments);
};

const Command commands[] = {
    {"run", "run test scripts in a browser", runScriptsCommand},
    {"record", "write what you do in a browser as a script", recordCommand},
    {"pick", "tell what an object of a page is by a click on it", pickCommand},
    {"dump", "write a page as a file that shows its picture and its objects", dumpCommand},
    {"names", "check that the names of a page's elements find them again", namesCommand},
    {"tree", "show the objects of a page as a tree", treeCommand},
    {"typings", "print a declaration file by which editors complete test scripts", typingsCommand},
    {"hook-script", "print the script that hooks a page", hookScriptCommand},
};

QString usage() {
  QString text = QStringLiteral("Usage: corvexweb COMMAND [options]\n\nCommands:\n");
  for (const Command& command : commands) {
    text += QStringLiteral("  %1 %2\n").arg(QLatin1String(command.name), -12).arg(QLatin1String(command.summary));
  }
  return text +
         QStringLiteral("\ncorvexweb COMMAND --help tells of its options, corvexweb --version of the program.\n");
}

}  // namespace

int runCommandLine(const QStringList& arguments) {
  const QString name = arguments.value(1);
  if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
    return printOut(usage(), ExitCode::Success);
  }
  if (name == QLatin1String("--version")) {
    return printOut(QStringLiteral("corvexweb %1\n").arg(QCoreApplication::applicationVersion()), ExitCode::Success);
  }
  for (const Command& command : commands) {
    if (name == QLatin1String(command.name)) {
      return command.run(arguments.mid(1));
    }
  }
  const QString complaint =
      name.isEmpty() ? QStringLiteral("A command is missing.") : QStringLiteral("There is no command '%1'.").arg(name);
  printError(QStringLiteral("corvexweb: %1\n\n%2").arg(complaint, usage()));
  return ExitCode::WrongUsage;
}

}  // namespace Corvex::Webhook
