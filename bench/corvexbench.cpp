// What a lookup costs beside the bare round trip to the browser, and what the start costs beside the browser's own.

#include "corvexhook/delegate.h"
#include "corvexhook/inspector.h"
#include "webhook/browsersession.h"
#include "webhook/browserwindows.h"
#include "webhook/cleanup.h"
#include "webhook/endpoint.h"
#include "webhook/webmodel.h"
#include "wrappers/web/calljavascriptfunction.h"
#include "wrappers/web/getjscode.h"
#include "wrappers/web/sleeping.h"
#include "wrappers/web/webobject.h"
#include "wrappers/web/wraphtmlobject.h"
#include "wrappers/web/wrapperconfig.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryFile>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

using namespace Corvex;

const int roundsPerMeasure = 400;
const int startRounds = 5;

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values.empty() ? 0 : values[values.size() / 2];
}

double elapsedMs(const QElapsedTimer& timer) { return static_cast<double>(timer.nsecsElapsed()) / 1e6; }

/// A page whose body has `elements` children, of as many kinds as there are tags.
QString pageOf(int elements, const QStringList& tags) {
  return QStringLiteral(
             "data:text/html,<body></body><script>var tags='%2'.split('+');for(var i=0;i<%1;i++){"
             "var e=document.createElement(tags[i%tags.length]);e.title='title'+i;e.setAttribute('name','name'+i);"
             "document.body.appendChild(e);}</script>")
      .arg(elements)
      .arg(tags.join(QLatin1Char('+')));
}

struct Measure {
  const char* name;
  std::function<void()> run;
  std::vector<double> times;
};

/// Takes the measures in turn, so that a machine that changes its speed changes it for all of them.
void takeTurns(std::vector<Measure>& measures, int rounds) {
  for (int round = 0; round < rounds; ++round) {
    for (Measure& measure : measures) {
      QElapsedTimer timer;
      timer.start();
      measure.run();
      measure.times.push_back(elapsedMs(timer));
    }
  }
}

void printTable(const char* title, const std::vector<Measure>& measures) {
  const double bare = median(measures.front().times);
  std::printf("%-52s %9s %8s\n", title, "ms", "ratio");
  for (const Measure& measure : measures) {
    std::printf("%-52s %9.3f %8.2f\n", measure.name, median(measure.times), median(measure.times) / bare);
  }
}

bool fail(const QString& error) {
  std::fprintf(stderr, "corvexbench: %s\n", qPrintable(error));
  return false;
}

/// Measures on a page of 1,000 elements: the name of one in the middle, one of its properties, the body's children.
bool measurePage(Webhook::Connection& connection, const char* title, const QStringList& tags) {
  const QString error = connection.navigate(pageOf(1000, tags));
  if (!error.isEmpty()) {
    return fail(error);
  }
  Inspector* inspector = Inspector::self();
  const QString name = QStringLiteral("{tagName='INPUT' name='name500' title='title500'}");
  const SharedPtr<Object> object = inspector->lookup(name);
  const SharedPtr<Object> body = inspector->lookup(QStringLiteral("{tagName='BODY'}"));
  if (!object || !body) {
    return fail(QStringLiteral("the page's elements were not found: ") + inspector->takeScriptError());
  }
  const WebWrapper::HTML_Object* input = WebWrapper::retrieveObject(object);
  const QString children =
      QStringLiteral("window.top.__corvex.childObjectAndInfo( %1 )").arg(WebWrapper::retrieveObject(body)->reference);
  std::vector<Measure> measures = {
      {"bare round trip (evaluate 1)", [&] { connection.evaluateJS(QStringLiteral("1"), 0); }, {}},
      {"findObject, three properties", [&] { inspector->lookup(name); }, {}},
      {"property read (tagName)", [&] { input->tagName(); }, {}},
      {"child list of the body", [&] { WebWrapper::callJavaScriptFunction(&connection, children, 0); }, {}},
  };
  takeTurns(measures, roundsPerMeasure);
  printTable(title, measures);
  return inspector->takeScriptError().isEmpty();
}

bool measureLookups() {
  Webhook::BrowserSession::Start start = Webhook::BrowserSession::start(Webhook::SessionOptions());
  if (!start.session) {
    return fail(start.error);
  }
  WebWrapper::MemoryBasedConfig config;
  Webhook::WebModel model;
  Webhook::BrowserWindows windows(*start.session, config, model);
  const QString error = windows.open();
  if (!error.isEmpty()) {
    return fail(error);
  }
  Webhook::Connection& connection = *windows.current();
  const bool done = measurePage(connection, "1,000 elements of ten tags, medians",
                                {"input", "div", "span", "a", "p", "li", "td", "button", "label", "section"}) &&
                    measurePage(connection, "1,000 elements of one tag, medians", {"input"});
  std::printf("\n%-52s %9d\n", "hook script, characters", WebWrapper::getJSCode(config).size());
  return done;
}

/// How fast the endpoint takes what one page sends, each message behind the reply to the one before; none may be lost.
bool measureMessages() {
  const int count = 2000;
  Webhook::BrowserSession::Start start = Webhook::BrowserSession::start(Webhook::SessionOptions());
  if (!start.session) {
    return fail(start.error);
  }
  QString error;
  Webhook::MessageEndpoint endpoint;
  endpoint.start(&error);
  endpoint.setAllowedOrigins({QStringLiteral("null")});
  WebWrapper::MemoryBasedConfig config;
  Webhook::WebModel model;
  Webhook::BrowserWindows windows(*start.session, config, model, endpoint.port());
  error = error.isEmpty() ? windows.open() : error;
  QTemporaryFile page(QDir::tempPath() + QStringLiteral("/corvexbench-XXXXXX.html"));
  page.open();
  error = error.isEmpty() ? windows.current()->navigate(QStringLiteral("file://") + page.fileName()) : error;
  if (!error.isEmpty()) {
    return fail(error);
  }
  int received = 0;
  QObject::connect(&endpoint, &Webhook::MessageEndpoint::messageReceived,
                   [&received](const Webhook::PageMessage& message) {
                     received += message.kind() == Webhook::MessageKind::LogEvent ? 1 : 0;
                   });
  QElapsedTimer timer;
  timer.start();
  windows.current()->evaluateJS(
      QStringLiteral(
          "(function send(left) { if (left) { __corvex__sendLogEventData(null, 'event=bench&left=' + left, true)"
          ".addEventListener('loadend', function () { send(left - 1); }); } }(%1))")
          .arg(count),
      0);
  while (received < count && timer.elapsed() < 60000) {
    WebWrapper::gentleSleep(1);
  }
  std::printf("\n%-52s %9d\n", "messages sent by one page", count);
  std::printf("%-52s %9d\n", "messages taken", received);
  std::printf("%-52s %9.0f\n", "messages per second", received * 1000.0 / static_cast<double>(timer.elapsed()));
  const QMap<QString, quint64> refused = endpoint.refused();
  for (auto row = refused.begin(); row != refused.end(); ++row) {
    std::printf("refused: %-43s %9llu\n", qPrintable(row.key()), static_cast<unsigned long long>(row.value()));
  }
  return received == count;
}

double bareStartMs() {
  QElapsedTimer timer;
  timer.start();
  const Webhook::BrowserSession::Start start = Webhook::BrowserSession::start(Webhook::SessionOptions());
  if (!start.session || !start.session->firstPage()->evaluate(QStringLiteral("1")).isOk()) {
    return -1;
  }
  return elapsedMs(timer);
}

/// From the start of the program to the line that it prints when the page has answered a lookup.
double programStartMs(const QString& program, const QString& script) {
  QElapsedTimer timer;
  timer.start();
  QProcess process;
  process.start(program, {QStringLiteral("run"), script});
  double answered = -1;
  while (answered < 0 && process.waitForReadyRead(30000)) {
    if (process.readAllStandardOutput().contains("findObject")) {
      answered = elapsedMs(timer);
    }
  }
  process.waitForFinished(30000);
  return answered;
}

bool measureStart() {
  QTemporaryFile script;
  if (!script.open()) {
    return fail(script.errorString());
  }
  script.write("startBrowser('data:text/html,<input name=a>');\nfindObject(\"{tagName='INPUT' name='a'}\");\n");
  script.flush();
  const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/corvexweb");
  std::vector<double> bare;
  std::vector<double> whole;
  for (int round = 0; round < startRounds; ++round) {
    bare.push_back(bareStartMs());
    whole.push_back(programStartMs(program, script.fileName()));
  }
  if (std::min(*std::min_element(bare.begin(), bare.end()), *std::min_element(whole.begin(), whole.end())) < 0) {
    return fail(QStringLiteral("a browser did not start"));
  }
  std::printf("\n%-52s %9s\n", "start, median", "ms");
  std::printf("%-52s %9.0f\n", "browser alone, to its first answer", median(bare));
  std::printf("%-52s %9.0f\n", "program start to the answer of a lookup", median(whole));
  std::printf("%-52s %9.0f\n", "the program's own share", median(whole) - median(bare));
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  Webhook::Cleanup::install();
  QCoreApplication application(argc, argv);
  if (qEnvironmentVariableIsEmpty("CORVEX_PREFIX")) {
    qputenv("CORVEX_PREFIX", QFileInfo(QCoreApplication::applicationDirPath()).path().toLocal8Bit());
  }
  return measureLookups() && measureMessages() && measureStart() ? 0 : 1;
}
