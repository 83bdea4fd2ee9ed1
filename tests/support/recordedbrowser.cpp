#include "support/recordedbrowser.h"

#include "corvexhook/inspector.h"
#include "shared/wait.h"
#include "support/files.h"
#include "webhook/run/browserfunctions.h"

using namespace Corvex;
using namespace Corvex::Webhook;

namespace TestSupport {

namespace {

const int patienceMs = 5000;
const int silenceMs = 300;

// One marker after what was sent on either way.
const QString endOfMessages = QStringLiteral(
    "__corvex__tellField(); var send = function () { __corvex__sendLogEventData(0, 'event=ignoreEvent&marker', true); "
    "};"
    "send(); __corvex__tellBeforeLeaving(send); 0");

QString textOfFile(const char* name) {
  return QString::fromUtf8(readFile(QStringLiteral(CORVEX_TEST_SOURCE "/support/") + QLatin1String(name)));
}

}  // namespace

void RecordedBrowser::Logger::logEvent(const QString& text) {
  markers += text.contains(QLatin1String("&marker")) ? 1 : 0;
  silence.setRemainingTime(silenceMs);
  ActRecorder::logEvent(text);
}

RecordedBrowser::RecordedBrowser(bool isRecorded, const SessionOptions& options) : m_control(options) {
  qputenv("CORVEX_PREFIX", CORVEX_TEST_PREFIX);
  if (isRecorded) {
    Inspector::self()->attachRecorder(&m_calls);
    Inspector::self()->setRecording(true);
    m_logger.setPictures(
        [](const QString& name) { return Corvex::FunctionCallResult<QString>::success(QStringLiteral("of ") + name); });
    m_control.recordWith(&m_logger);
  }
  m_engine = std::make_unique<Scripting::ScriptEngine>(browserFunctions(m_control), &m_noListeners);
}

RecordedBrowser::~RecordedBrowser() {
  Inspector::self()->setRecording(false);
  Inspector::self()->attachRecorder(nullptr);
}

QString RecordedBrowser::show(const QString& page) {
  QString error;
  if (!m_control.windows()) {
    error = m_control.startBrowser(page);
    if (error.isEmpty() && Inspector::self()->isRecording()) {
      m_logger.watch(*m_control.windows());
    }
  } else {
    while (m_control.windows()->connections().size() > 1) {
      m_control.windows()->setCurrent(m_control.windows()->connections().constLast());
      m_control.closeWindow();
    }
    error = m_control.openUrl(page);
  }
  awaitMessages();
  m_lines.lines.clear();
  return error;
}

QString RecordedBrowser::act(const QString& statements) {
  const QString path = m_folder.filePath(QStringLiteral("script.js"));
  writeFile(path, statements.toUtf8());
  Inspector::self()->setDefaultTimeout(patienceMs);
  const Scripting::ScriptResult result = m_engine->runFile(path);
  QString error = result.error;
  if (!error.isEmpty()) {
    error += QLatin1Char('\n') + Scripting::traceLines(result.trace).join('\n');
  }
  return error;
}

void RecordedBrowser::awaitMessages() {
  for (Connection* window : m_control.windows()->connections()) {
    const int before = m_logger.markers;
    window->evaluateJS(endOfMessages, patienceMs);
    poll(patienceMs, 10, [&] { return !Inspector::self()->isRecording() || m_logger.markers >= before + 2; });
  }
  // What a page sent when it went is on a way of its own.
  poll(patienceMs, 10, [&] { return m_logger.silence.hasExpired(); });
  m_logger.finish();
}

QStringList RecordedBrowser::recorded() {
  awaitMessages();
  return m_lines.lines;
}

void RecordedBrowser::restPointer() {
  for (Connection* window : m_control.windows()->connections()) {
    window->perform({InputStep()});
  }
}

void RecordedBrowser::pressBeside() {
  for (Connection* window : m_control.windows()->connections()) {
    InputStep press;
    press.kind = InputStep::Press;
    InputStep release;
    release.kind = InputStep::Release;
    window->perform({InputStep(), press, release});
  }
}

QString RecordedBrowser::state() {
  static const QString code = textOfFile("pagestate.js");
  QString result;
  for (Connection* window : m_control.windows()->connections()) {
    result += window->evaluateJS(code, patienceMs).text + QLatin1Char('\n');
  }
  return result;
}

QString RecordedBrowser::stateAwaited(const QString& state) {
  QString last;
  poll(patienceMs, 100, [&] {
    last = this->state();
    return last == state;
  });
  return last;
}

}  // namespace TestSupport
