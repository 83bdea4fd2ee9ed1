#include "webhook/cli/dumpcommand.h"

#include "shared/visibletext.h"
#include "shared/wholefile.h"
#include "webhook/cli/commandline.h"
#include "webhook/cli/commandoptions.h"
#include "webhook/cli/output.h"
#include "webhook/cli/pagecommand.h"
#include "webhook/inspect/dumpfile.h"

#include <QFileInfo>
#include <QLocale>

namespace Corvex::Webhook {

namespace {

const QCommandLineOption outputOption({QStringLiteral("o"), QStringLiteral("output")},
                                      QStringLiteral("Write to this file: HTML, or by its ending .json or .xml."),
                                      QStringLiteral("file"), QStringLiteral("dump.html"));
const QCommandLineOption filterOption(
    QStringLiteral("filter"),
    QStringLiteral("The properties of objects to write, parted by commas; * stands for any characters."),
    QStringLiteral("properties"));

const char* const description =
    "Writes a page as one file that opens offline: its picture, and all its objects with their names, properties and\n"
    "places. A file that is there already is replaced once the new one is complete.\n"
    "\n"
    "Exit code: 0 the page was written, 1 it could not be read, loaded or written, 2 wrong usage, 3 the browser could\n"
    "not be started or was lost.";

QStringList readProperties(const QCommandLineParser& parser) {
  QStringList properties;
  for (const QString& name : parser.value(filterOption).split(QLatin1Char(','), Qt::SkipEmptyParts)) {
    properties << name.trimmed();
  }
  return parser.isSet(filterOption) ? properties : usualProperties();
}

}  // namespace

int dumpCommand(const QStringList& arguments) {
  PageCommand command(QString::fromLatin1(description));
  command.parser().addOptions({outputOption, filterOption});
  if (const std::optional<int> exitCode = command.parse(arguments)) {
    return *exitCode;
  }
  const QString path = command.parser().value(outputOption);
  // Before the browser starts: a long wait for nothing is worse.
  const QString refusal = whyNotWritable(path);
  if (!refusal.isEmpty()) {
    return wrongUsage(arguments.value(0), QStringLiteral("The file '%1' cannot be written: %2.").arg(path, refusal));
  }
  if (const std::optional<int> exitCode = command.open()) {
    return *exitCode;
  }
  const PageDump dump = readDump(*command.browser().windows(), command.page(), readProperties(command.parser()));
  const QString lost = command.browser().whyNotAskPage();
  if (!lost.isEmpty() || dump.objects.isEmpty()) {
    return command.fail(lost.isEmpty() ? dump.error : lost);
  }
  const QString error = saveDump(dump, path);
  if (!error.isEmpty()) {
    return command.fail(error);
  }
  const int exitCode =
      printOut(QStringLiteral("%1: %2 objects, %3\n")
                   .arg(visibleText(path, LineBreaks::Shown), QString::number(dump.objects.size()),
                        QLocale::c().formattedDataSize(QFileInfo(path).size(), 1, QLocale::DataSizeSIFormat)),
               ExitCode::Success);
  return dump.error.isEmpty() ? exitCode : command.fail(dump.error);
}

}  // namespace Corvex::Webhook
