// Measures the program in the browsers that it drives, one table for each.

#include "subjects.h"
#include "webhook/process/cleanup.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace {

using namespace CorvexBench;

struct Subject {
  const char* name;
  bool (*measure)(const SessionOptions& options, Report& report);
};

// The first one has the round trip, which the others are compared with.
const Subject subjects[] = {
    {"lookups", measureLookups},     {"page", measureInPage}, {"messages", measureMessages},
    {"recording", measureRecording}, {"dump", measureDump},   {"start", measureStart},
};

bool isSubject(const QString& name) {
  return std::any_of(std::begin(subjects), std::end(subjects),
                     [&name](const Subject& subject) { return name == QLatin1String(subject.name); });
}

bool measureBrowser(const QString& browser, const QString& only) {
  SessionOptions options;
  options.browser = browser;
  Report report(browser + QStringLiteral(", medians"));
  for (const Subject& subject : subjects) {
    const bool isWanted = only.isEmpty() || only == QLatin1String(subject.name) || &subject == &subjects[0];
    if (isWanted && !subject.measure(options, report)) {
      return false;
    }
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  Corvex::Webhook::Cleanup::install();
  QCoreApplication application(argc, argv);
  if (qEnvironmentVariableIsEmpty("CORVEX_PREFIX")) {
    qputenv("CORVEX_PREFIX", QFileInfo(QCoreApplication::applicationDirPath()).path().toLocal8Bit());
  }
  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addOption({QStringLiteral("browser"),
                    QStringLiteral("Measure in this browser only: chromium or firefox; both without it."),
                    QStringLiteral("NAME")});
  parser.addOption(
      {QStringLiteral("only"),
       QStringLiteral("Measure the round trip and one subject: lookups, page, messages, recording, dump or start."),
       QStringLiteral("SUBJECT")});
  parser.process(application);
  const QString only = parser.value(QStringLiteral("only"));
  if (!only.isEmpty() && !isSubject(only)) {
    fail(QStringLiteral("There is no subject '%1'; say lookups, page, messages, recording, dump or start.").arg(only));
    return 2;
  }
  const QStringList wanted = parser.values(QStringLiteral("browser"));
  bool done = true;
  for (const QString& browser :
       wanted.isEmpty() ? QStringList{QStringLiteral("chromium"), QStringLiteral("firefox")} : wanted) {
    done = measureBrowser(browser, only) && done;
  }
  return done ? 0 : 1;
}
