#include "webhook/recorder/eventrecorder.h"

#include "corvexhook/inspector.h"
#include "corvexhook/recorder.h"
#include "webhook/pages/browserwindows.h"
#include "webhook/pages/contextinname.h"
#include "webhook/pages/windownames.h"
#include "webhook/recorder/messagetext.h"
#include "webhook/recorder/recordedwindows.h"
#include "webhook/recorder/typedkeys.h"
#include "wrappers/web/recording/recordedtypes.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QStringList>

#include <utility>

namespace Corvex::Webhook {

namespace {

using WebWrapper::EventMap;

// From the first press of a double click to its end.
const int longestDoubleClickMs = 1500;

// Longer than people who type pause between two keys, mostly.
const int idleMs = 1000;

QString item(const EventMap& data, const char* key) { return data.value(QLatin1String(key)); }

// How long a message is on its way after another that was sent with it.
const int patienceMs = 100;

}  // namespace

EventRecorder::EventRecorder(Recorder& calls) : m_calls(calls), m_messages(patienceMs) {}

EventRecorder::~EventRecorder() = default;

void EventRecorder::watch(const BrowserWindows& windows) {
  m_windows = std::make_unique<RecordedWindows>(windows);
  m_window = windows.connections().isEmpty() ? QString() : windows.connections().constFirst()->tabId();
  QObject::connect(&windows, &BrowserWindows::windowClosed, &windows,
                   [this](Connection* window) { noteClosed(*window); });
}

void EventRecorder::logEvent(const QString& text) { m_messages.add(withOutsideContext(text)); }

QString EventRecorder::withOutsideContext(const QString& text) const {
  const EventMap data = m_windows ? WebWrapper::parseEvent(text) : EventMap();
  const QString context = item(data, "context");
  if (context.isEmpty()) {
    return text;
  }
  static const QRegularExpression contextItem(QStringLiteral("&context=[^&]*"));
  const QString window = m_windows->windowOf(item(data, "tabId"), context);
  return QString(text).replace(contextItem, QStringLiteral("&context=") +
                                                inEscapes(m_windows->outside(window, context)) +
                                                QStringLiteral("&window=") + window);
}

// What pages told before comes first.
void EventRecorder::noteClosed(const Connection& window) {
  m_messages.add(QStringLiteral("logevent%1&event=windowClosed&window=%2&context=%3")
                     .arg(QDateTime::currentMSecsSinceEpoch())
                     .arg(window.tabId(), inEscapes(m_windows->nameOf(window))));
}

bool EventRecorder::takeWindow() {
  const QString window = item(m_data, "window");
  if (event() == QLatin1String("windowCloses")) {
    // It may be gone already, and so is what it is known by.
    const QString tabId = item(m_data, "tabId");
    m_closing << (tabId.isEmpty() ? item(m_data, "context") : tabId);
    return true;
  }
  if (event() != QLatin1String("windowClosed") || !Inspector::self()->isRecording()) {
    return event() == QLatin1String("windowClosed");
  }
  flushRecordedTextInput();
  const QString newest = m_windows->newest();
  // The page does it again; and nothing is left to be done after the last window.
  const QString context = item(m_data, "context");
  const bool isByPage = m_closing.removeAll(window) + m_closing.removeAll(context) > 0;
  if (!isByPage && !newest.isEmpty()) {
    enterWindow(window, context);
    append(EventData(QStringLiteral("closeWindow"), QString(), {}), nullptr);
  }
  if (m_window == window) {
    m_window = newest;
  }
  return true;
}

void EventRecorder::enterWindow(const QString& window, const QString& context) {
  if (!window.isEmpty() && window != std::exchange(m_window, window)) {
    const QString name = context.left(context.size() - framesOf(context).size());
    append(EventData(QStringLiteral("setContext"), name, {}), nullptr);
  }
}

// Names of elements in frames begin with the context that the page knows.
QString EventRecorder::adaptQualifiedName(const QString& name, const EventMap& data) {
  const QString context = item(data, "context");
  return m_windows && !context.isEmpty() && namesItsContext(name) ? inContext(name, context) : name;
}

QString EventRecorder::nameForScripts(const QString& name, const QString& context) const {
  if (!m_windows || context.isEmpty() || !namesItsContext(name)) {
    return name;
  }
  return inContext(name, m_windows->outside(m_windows->windowOf(item(m_data, "tabId"), context), context));
}

void EventRecorder::workOnNext() {
  EventLogger::logEvent(withEscapedAnswer(m_messages.takeNext()));
  recordRepeatedPress();
}

void EventRecorder::finish() {
  while (!m_messages.isEmpty()) {
    workOnNext();
  }
  flushRecordedTextInput();
}

void EventRecorder::recordCall(const QString& objectName, const char* functionName, const ObjectList& arguments,
                               const QTime* time) {
  const QString function = QString::fromLatin1(functionName);
  if (function == QLatin1String("typeText")) {
    recordText(objectName, arguments.at(0)->toString(), time);
    return;
  }
  // Every link and every form leads to one; windows that close are another matter.
  if (function == QLatin1String("closeWindow")) {
    return;
  }
  // Then the place is none in the object.
  const bool isBeside = m_data.contains(QStringLiteral("beside"));
  append(EventData(function, objectName, isBeside ? ObjectList() : arguments), time);
  if (function == QLatin1String("waitForContextExists")) {
    enterWindow(item(m_data, "window"), objectName);
  }
  // A click of a person has been recorded at its press.
  m_lastIsReturn = event() == QLatin1String("click") && function == QLatin1String("clickButton") && !m_isReturnDown;
}

QString EventRecorder::event() const { return item(m_data, "event"); }

// Each press is an act of its own, however often the same object is pressed; the click that follows it is none. The
// logger takes the press for told already.
void EventRecorder::recordRepeatedPress() {
  const QString function = std::exchange(m_repeatedPress, QString());
  if (!function.isEmpty()) {
    const int modifiers = WebWrapper::getModifiers(m_data);
    const QTime time = WebWrapper::getTimeStampFromEventData(m_data);
    append(EventData(function, m_calls.last().objectName(),
                     modifiers != 0 ? ObjectList{Inspector::self()->wrapInt(modifiers)} : ObjectList()),
           &time);
  }
}

void EventRecorder::keepUp() {
  while (m_messages.isNextDue()) {
    workOnNext();
  }
  if (m_idle.hasExpired()) {
    m_idle = QDeadlineTimer(QDeadlineTimer::Forever);
    m_isIdleFlush = true;
    flushRecordedTextInput();
    m_isIdleFlush = false;
  }
}

void EventRecorder::begin() {
  const QString address = std::exchange(m_firstPage, QString());
  if (!address.isEmpty()) {
    append(EventData(QStringLiteral("startBrowser"), address, {}), nullptr);
  }
}

void EventRecorder::append(const EventData& call, const QTime* time) {
  begin();
  m_lastIsReturn = false;
  m_openField.clear();
  m_openSetting.clear();
  m_times.append(time ? *time : QTime());
  m_calls.append(call, time);
}

// What the logger gives has a blank for each line break; what the page told last has the breaks.
void EventRecorder::recordText(const QString& objectName, const QString& text, const QTime* time) {
  const QString content = m_contents.value(objectName);
  const bool isReturn = text == QLatin1String("<Return>") && content != text;
  if (isReturn && (m_lastIsReturn || isClickOfReturn())) {
    return;
  }
  const bool isContent = !isReturn && content.size() == text.size() && content.contains(QLatin1Char('\n'));
  const QString typed = isContent ? content : text;
  if (!isReturn && m_openField == objectName) {
    if (m_calls.last().arguments().at(0)->toString() == typed) {
      return;
    }
    removeLastRecordedEvent();
  }
  const QString function = !isReturn && readsAsKeys(typed) ? QStringLiteral("setText") : QStringLiteral("typeText");
  append(EventData(function, objectName, {Inspector::self()->wrapString(typed)}), time);
  m_openField = m_isIdleFlush && !isReturn ? objectName : QString();
}

void EventRecorder::addUnmatchedProperty(const QString& objectName, const QString& property) {
  Inspector::self()->addUnmatchedProperty(objectName, property);
}

void EventRecorder::removeUnmatchedProperties(const QString& objectName) {
  Inspector::self()->removeUnmatchedProperties(objectName);
}

// The clicks that a double click begins with stand there already, each as one call at most.
void EventRecorder::doubleClickSeen(const QString& objectName, const EventMap& data) {
  static const QStringList clicks{QStringLiteral("mouseClick"), QStringLiteral("clickButton"),
                                  QStringLiteral("setFocus")};
  const QTime end = WebWrapper::getTimeStampFromEventData(data);
  for (int taken = 0; taken < 2; ++taken) {
    const EventData last = m_calls.last();
    const bool isClick = last.objectName() == objectName && clicks.contains(last.functionName());
    if (!isClick || m_times.isEmpty() || m_times.last().msecsTo(end) > longestDoubleClickMs) {
      return;
    }
    removeLastRecordedEvent();
  }
}

void EventRecorder::keyEventSeen(const QString&) { m_idle.setRemainingTime(idleMs); }

void EventRecorder::takeUp(const QString& objectName, const EventMap& data) {
  recordRepeatedPress();
  m_isKeyClick = m_isKeyClick && event() == QLatin1String("keyClick");
  m_data = data;
  if (item(data, "type") == QLatin1String("password")) {
    m_passwords.insert(objectName);
  }
  if (event() == QLatin1String("unload")) {
    m_contents.clear();
  }
}

bool EventRecorder::compressedNonRecordingEventData(const QString& objectName, const EventMap& data) {
  takeUp(objectName, data);
  return takeWindow() || takeDialog(event(), data) || takeKey(objectName) || takeFieldSet(objectName) ||
         takeKeyClick(objectName) || EventLogger::compressedNonRecordingEventData(objectName, data);
}

bool EventRecorder::takeKey(const QString& objectName) {
  const bool goesDown = event() == QLatin1String("keydown");
  if (!goesDown && event() != QLatin1String("keyup")) {
    m_returnField.clear();
    return false;
  }
  if (objectName != m_returnField) {
    m_returnField.clear();
  }
  const int keyCode = item(m_data, "keyCode").toInt();
  if (keyCode == 13) {
    return takeReturn(objectName, goesDown);
  }
  // A field that changed after the Return.
  if (keyCode == 0) {
    m_returnField.clear();
  }
  const QString content = item(m_data, "value");
  const bool isTold = m_contents.contains(objectName) && m_contents.value(objectName) == content;
  const bool isNews = keyCode != 0 && !isKeyWithoutText(keyCode);
  // A page tells of a field once more when it goes; and what a field held before any key is nobody's doing.
  const bool isChange = (keyCode == 0 || m_contents.contains(objectName)) && !isTold;
  const bool changesNothing =
      item(m_data, "readonly") == QLatin1String("true") || objectName == m_returnField || (!isNews && !isChange);
  if (!changesNothing) {
    m_contents.insert(objectName, content);
  }
  return changesNothing;
}

// Pages tell of it when it goes down, as they may be gone before it comes up; some tell of both.
bool EventRecorder::takeReturn(const QString& objectName, bool goesDown) {
  const bool isTold = !goesDown && m_isReturnDown;
  m_isReturnDown = goesDown;
  if (goesDown) {
    m_returnField = objectName;
  }
  if (isTold) {
    // What is typed next would take its place.
    flushRecordedTextInput();
  }
  m_contents.insert(objectName, item(m_data, "value"));
  return isTold;
}

bool EventRecorder::takeFieldSet(const QString& objectName) {
  if (event() != QLatin1String("fieldSet") || !Inspector::self()->isRecording()) {
    return false;
  }
  flushRecordedTextInput();
  enterContext(item(m_data, "context"));
  const QTime time = WebWrapper::getTimeStampFromEventData(m_data);
  if (m_openSetting == objectName) {
    removeLastRecordedEvent();
  }
  append(EventData(QStringLiteral("setText"), objectName, {Inspector::self()->wrapString(item(m_data, "content"))}),
         &time);
  m_openSetting = objectName;
  return true;
}

// The logger knows the clicks that keys make of buttons that send forms.
bool EventRecorder::takeKeyClick(const QString& objectName) {
  if (event() != QLatin1String("keyClick") || !Inspector::self()->isRecording()) {
    return false;
  }
  m_isKeyClick = true;
  const QString type = item(m_data, "type");
  const bool isButton = WebWrapper::isButtonType(type) && type != QLatin1String("submit");
  if (isButton || WebWrapper::isLink(type)) {
    flushRecordedTextInput();
    enterContext(item(m_data, "context"));
    const QTime time = WebWrapper::getTimeStampFromEventData(m_data);
    append(EventData(isButton ? QStringLiteral("clickButton") : QStringLiteral("mouseClick"), objectName, {}), &time);
  }
  return true;
}

// A browser makes a click of a Return in a form.
bool EventRecorder::isClickOfReturn() const {
  return m_isReturnDown && event() == QLatin1String("click") && item(m_data, "type") == QLatin1String("submit");
}

bool EventRecorder::takeDialog(const QString& event, const EventMap& data) {
  // Windows of this machine are recorded by nobody else.
  if (event.endsWith(QLatin1String("ableFallbackWrapper"))) {
    return true;
  }
  const QString answer = item(data, "ret");
  const QTime time = WebWrapper::getTimeStampFromEventData(data);
  if (event != QLatin1String("alert") && event != QLatin1String("confirm") && event != QLatin1String("prompt")) {
    return false;
  }
  if (!Inspector::self()->isRecording()) {
    return true;
  }
  flushRecordedTextInput();
  if (event == QLatin1String("alert")) {
    recordCall(QString(), "closeAlert", {}, &time);
  } else if (event == QLatin1String("confirm")) {
    recordCall(QString(), "closeConfirm", {Inspector::self()->wrapBool(answer == QLatin1String("true"))}, &time);
  } else {
    recordCall(QString(), "closePrompt", {Inspector::self()->wrapString(answer)}, &time);
  }
  return true;
}

EventData EventRecorder::lastRecordedEvent() { return m_calls.last(); }

void EventRecorder::removeLastRecordedEvent() {
  if (!m_times.isEmpty()) {
    m_times.removeLast();
    m_calls.takeBackLast();
  }
}

bool EventRecorder::isLastRecordedCall(const QString& functionName, const QString& objectName) {
  const EventData last = m_calls.last();
  const bool isLast = last.functionName() == functionName && last.objectName() == objectName;
  const bool isPress = event() == QLatin1String("mousedown") || event() == QLatin1String("touchend");
  const bool isKeyClick = m_isKeyClick && event() == QLatin1String("click");
  if (isLast && (isPress || isKeyClick || isClickOfReturn())) {
    m_repeatedPress = functionName;
  }
  return isLast;
}

}  // namespace Corvex::Webhook
