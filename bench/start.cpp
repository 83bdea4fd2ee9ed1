#include "subjects.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryFile>

#include <algorithm>

namespace CorvexBench {

using namespace Corvex;

namespace {

const int rounds = 5;
const int giveUpMs = 30000;

double bareStartMs(const SessionOptions& options) {
  QElapsedTimer timer;
  timer.start();
  const Webhook::BrowserSession::Start start = Webhook::BrowserSession::start(options);
  if (!start.value || !start.value->firstPage()->evaluate(QStringLiteral("1")).succeeded()) {
    return -1;
  }
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// From the start of the program to the line that it prints when the page has answered a lookup.
double programStartMs(const SessionOptions& options, const QString& script) {
  QElapsedTimer timer;
  timer.start();
  QProcess process;
  process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/corvexweb"),
                {QStringLiteral("run"), QStringLiteral("--browser"), options.browser, script});
  double answered = -1;
  while (answered < 0 && process.waitForReadyRead(giveUpMs)) {
    if (process.readAllStandardOutput().contains("findObject")) {
      answered = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    }
  }
  process.waitForFinished(giveUpMs);
  return answered;
}

}  // namespace

bool measureStart(const SessionOptions& options, Report& report) {
  QTemporaryFile script;
  if (!script.open()) {
    return fail(script.errorString());
  }
  script.write("startBrowser('data:text/html,<input name=a>');\nfindObject(\"{tagName='INPUT' name='a'}\");\n");
  script.flush();
  std::vector<double> bare;
  std::vector<double> whole;
  for (int round = 0; round < rounds; ++round) {
    bare.push_back(bareStartMs(options));
    whole.push_back(programStartMs(options, script.fileName()));
  }
  if (std::min(*std::min_element(bare.begin(), bare.end()), *std::min_element(whole.begin(), whole.end())) < 0) {
    return fail(QStringLiteral("a browser did not start"));
  }
  report.section(QStringLiteral("Start"));
  report.addNumber(QStringLiteral("browser alone, to its first answer, ms"), median(bare));
  report.addNumber(QStringLiteral("program start to the answer of a lookup, ms"), median(whole));
  report.addNumber(QStringLiteral("the program's own share, ms"), median(whole) - median(bare));
  return true;
}

}  // namespace CorvexBench
