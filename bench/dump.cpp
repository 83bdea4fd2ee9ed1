#include "hookedpage.h"
#include "subjects.h"
#include "webhook/inspect/dumpfile.h"
#include "webhook/pages/connection.h"

#include <QDir>
#include <QTemporaryFile>

namespace CorvexBench {

using namespace Corvex::Webhook;

namespace {

struct PageRow {
  int objects;
  double aimMs;
  int rounds;
};

const PageRow rows[] = {{1000, 1000, 5}, {10000, 6000, 3}};

// Rows of ten elements.
const char* const body =
    "<table><script>for (var i = 0; i < %1; ++i) { document.write('<tr><td>' + i + '<td><a href=#>Order ' + i + "
    "'</a><td><input name=\"n' + i + '\"><td><button>Buy ' + i + '</button><td><span>Line ' + i + '</span>'); "
    "}</script></table>";

bool measurePage(const PageRow& row, HookedPage& hooked, Report& report) {
  QTemporaryFile page(QDir::tempPath() + QStringLiteral("/corvexbench-XXXXXX.html"));
  page.open();
  page.write(QString::fromLatin1(body).arg(row.objects / 10).toUtf8());
  page.flush();
  Connection& connection = hooked.connection();
  QString error = connection.navigate(QStringLiteral("file://") + page.fileName());
  if (!error.isEmpty()) {
    return fail(error);
  }
  PageDump dump;
  const auto read = [&] {
    dump = readDump(hooked.windows(), connection, usualProperties());
    error = error.isEmpty() ? dump.error : error;
  };
  report.section(QStringLiteral("A page of %1 objects").arg(row.objects));
  takeTurns({{QStringLiteral("one picture of the page"), [&] { connection.grabPageScreenshot(); }},
             {QStringLiteral("the dump, read and written as HTML"), [&] { read(), dumpAsHtml(dump); }, row.aimMs},
             {QStringLiteral("its writing alone"), [&] { dumpAsHtml(dump); }}},
            row.rounds, report);
  const bool isComplete = dump.objects.size() >= row.objects;
  return error.isEmpty() && isComplete ? true : fail(isComplete ? error : QStringLiteral("The dump lacks objects."));
}

}  // namespace

bool measureDump(const SessionOptions& options, Report& report) {
  HookedPage hooked;
  const QString error = hooked.start(options);
  if (!error.isEmpty()) {
    return fail(error);
  }
  for (const PageRow& row : rows) {
    if (!measurePage(row, hooked, report)) {
      return false;
    }
  }
  return true;
}

}  // namespace CorvexBench
