#include "wrappers/web/recording/eventlogger.h"

#include "corvexhook/class.h"
#include "corvexhook/inspector.h"
#include "tracelib/tracepoint.h"
#include "wrappers/web/picking/sendobjectpickedtospy.h"
#include "wrappers/web/recording/eventcompression.h"

#include <QtGlobal>

namespace Corvex::WebWrapper {

namespace {

// Outlive each logger: a browser's connection, and its logger, may be a new one for the same recording.
QString lastEvent;
QString currContext;

/// Which event of the catalogue an item stands for, and where its arguments are.
struct ConversionRow {
  const char* item;
  const char* event;
  const char* arguments[4];
};

constexpr const char* modifiers = "";

constexpr ConversionRow conversions[] = {
    {"mousedown", "mousedown", {"x", "y", modifiers, "button"}},
    {"click", "click", {"x", "y", modifiers, "button"}},
    {"dblclick", "dblclick", {"x", "y", modifiers, "button"}},
    {"keyup", "keyup", {modifiers, "keyCode"}},
    {"keydown", "keyup", {modifiers, "keyCode"}},
    {"unload", "unload", {}},
    {"change", "change", {}},
    {"chooseColor", "chooseColor", {}},
    {"ignoreEvent", "ignoreEvent", {}},
};

QString eventOf(const EventMap& data) { return data.value(QStringLiteral("event")); }

}  // namespace

EventLogger::EventLogger() : recordedTextInput(std::make_unique<TextInput>()) {}

EventLogger::~EventLogger() = default;

void EventLogger::logEvent(const QString& text) {
  pendingEvents.push_back(text);
  if (pendingEvents.size() > 1) {
    return;
  }
  // It stays in the queue while it is worked on: that keeps the texts that come meanwhile waiting.
  while (!pendingEvents.empty()) {
    recordEvent(QString(pendingEvents.front()));
    pendingEvents.pop_front();
  }
}

void EventLogger::recordEvent(const QString& text) {
  if (waitingForEvalAnswer && !text.contains(QLatin1String("event=evalAnswer"))) {
    return;
  }
  // With its stamp, a message is the same only where it was delivered twice.
  if (text == lastEvent && !text.startsWith(QLatin1String("event=unload"))) {
    return;
  }
  lastEvent = text;
  EventMap data = parseEvent(text);
  QString objectName = data.take(QStringLiteral("object"));
  if (!objectName.isEmpty()) {
    TRACE_POINT("WebEventLogger", QStringLiteral("name before adapting: %1").arg(objectName));
    objectName = adaptQualifiedName(objectName, data);
    TRACE_POINT("WebEventLogger", QStringLiteral("name after adapting: %1").arg(objectName));
  }
  // From here on a tap is a press.
  if (eventOf(data) == QLatin1String("touchend")) {
    data.insert(QStringLiteral("event"), QStringLiteral("mousedown"));
  }
  if (compressedNonRecordingEventData(objectName, data) || !Inspector::self()->isRecording()) {
    return;
  }
  if (eventOf(data) == QLatin1String("startBrowser")) {
    recordCall(data.value(QStringLiteral("url")), "startBrowser", {}, nullptr);
  }
  ObjectList arguments;
  const Event* const event = convertEvent(arguments, objectName, data);
  if (!event) {
    qWarning("convertEvent: unhandled event '%s'", qUtf8Printable(text));
    return;
  }
  enterContext(data.value(QStringLiteral("context")));
  if (!eatEvent(event, objectName, data)) {
    handleUncompressedEventData(EventData(event, objectName, arguments));
  }
}

void EventLogger::enterContext(const QString& context) {
  if (context.isEmpty() || context == currContext) {
    return;
  }
  flushRecordedTextInput();
  currContext = context;
  if (shouldRecordWaitForContextExists()) {
    recordCall(currContext, "waitForContextExists", {}, nullptr);
  }
}

const Event* EventLogger::convertEvent(ObjectList& arguments, const QString&, const EventMap& data) {
  for (const ConversionRow& row : conversions) {
    if (eventOf(data) != QLatin1String(row.item)) {
      continue;
    }
    for (const char* name : row.arguments) {
      if (name) {
        const int value = name == modifiers ? getModifiers(data) : data.value(QLatin1String(name)).toInt();
        arguments.push_back(Inspector::self()->wrapInt(value));
      }
    }
    for (const SharedPtr<Object>& argument : arguments) {
      argument->setOwnsData(true);
    }
    return Inspector::self()->globalClass()->event(QLatin1String(row.event));
  }
  return nullptr;
}

bool EventLogger::eatEvent(const Event* event, const QString& objectName, const EventMap& data) {
  return EventCompression(*this, event->name(), objectName, data).run();
}

void EventLogger::flushRecordedTextInput() {
  // Emptied before the call: who keeps the calls may come back here.
  const TextInput input = *recordedTextInput;
  *recordedTextInput = TextInput();
  if (!input.objectName.isEmpty()) {
    const QTime time = input.time;
    recordCall(input.objectName, input.type == QLatin1String("file") ? "setText" : "typeText",
               {Inspector::self()->wrapString(input.text)}, &time);
  }
}

void EventLogger::doCheckWindowClosedOrHook() {}

QString EventLogger::adaptQualifiedName(const QString& name, const EventMap&) { return name; }

bool EventLogger::shouldRecordWaitForContextExists() const { return true; }

bool EventLogger::compressedNonRecordingEventData(const QString& objectName, const EventMap& data) {
  const QString event = eventOf(data);
  const QString name = data.value(QStringLiteral("name"));
  if (event == QLatin1String("clear")) {
    lastPressWasSubmit = false;
  } else if (event == QLatin1String("pickedObject")) {
    TRACE_POINT("WebEventLogger", QStringLiteral("Sending picked event to spy for %1").arg(objectName));
    sendObjectPickedToSpy(objectName);
  } else if (event == QLatin1String("addUnmatchedProperty")) {
    addUnmatchedProperty(name, data.value(QStringLiteral("property")));
  } else if (event == QLatin1String("removeUnmatchedProperties")) {
    removeUnmatchedProperties(name);
  } else {
    return false;
  }
  return true;
}

void EventLogger::handleUncompressedEventData(const EventData& event) {
  const QString name = event.event() ? event.event()->name() : QString();
  qWarning("Unhandled event: '%s' for '%s'.", qUtf8Printable(name), qUtf8Printable(event.objectName()));
}

bool EventLogger::recordClickOnTextField() const { return false; }

}  // namespace Corvex::WebWrapper
