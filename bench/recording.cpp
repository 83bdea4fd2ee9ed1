#include "hookedpage.h"
#include "subjects.h"

#include <QDir>
#include <QTemporaryFile>

#include <algorithm>
#include <vector>

namespace CorvexBench {

namespace {

struct EventRow {
  const char* name;
  const char* code;
  double aimMs;  ///< 0 for none.
};

// Made one after the other at different objects, since the clock of a page is coarse: milliseconds for each.
const char* const turn =
    "(function () { var all = document.querySelectorAll('%1'), start = performance.now(), n = 40;"
    "for (var i = 0; i < n; ++i) { all[i * 7 % all.length].dispatchEvent(new %2); }"
    "return (performance.now() - start) / n; }())";

const EventRow rows[] = {
    {"bare event", "Event('bare', { bubbles: true })", 0},
    {"press, recorded", "MouseEvent('mousedown', { bubbles: true })", 5},
    {"key, recorded", "KeyboardEvent('keyup', { bubbles: true, keyCode: 66 })", 2},
};

const int rounds = 15;

// 2,000 elements, one line of four in each.
const char* const body =
    "<script>for (var i = 0; i < 500; ++i) { document.write('<p><button>Button ' + i + '</button><input name=\"n' + i "
    "+ "
    "'\"><span>A text of the page, line ' + i + '</span>'); }</script>";

}  // namespace

bool measureRecording(const SessionOptions& options, Report& report) {
  HookedPage hooked;
  QString error = hooked.start(options, true);
  QTemporaryFile page(QDir::tempPath() + QStringLiteral("/corvexbench-XXXXXX.html"));
  page.open();
  page.write(body);
  page.flush();
  error = error.isEmpty() ? hooked.connection().navigate(QStringLiteral("file://") + page.fileName()) : error;
  if (!error.isEmpty()) {
    return fail(error);
  }
  report.section(QStringLiteral("Events in a recorded page of 2,000 elements, microseconds for each in the page"));
  for (const EventRow& row : rows) {
    const QString target =
        QString::fromLatin1(row.name).startsWith(u'k') ? QStringLiteral("input") : QStringLiteral("button");
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
      const auto answer =
          hooked.connection().evaluateJS(QString::fromLatin1(turn).arg(target, QString::fromLatin1(row.code)), 0);
      bool isNumber = false;
      times.push_back(answer.text.toDouble(&isNumber));
      if (!answer.succeeded() || !isNumber) {
        return fail(answer.text);
      }
    }
    std::sort(times.begin(), times.end());
    const QString aim = row.aimMs > 0 ? QStringLiteral(", aim %1").arg(1000 * row.aimMs) : QString();
    report.addNumber(QString::fromLatin1(row.name) + aim, 1000 * times[times.size() / 2]);
  }
  return true;
}

}  // namespace CorvexBench
