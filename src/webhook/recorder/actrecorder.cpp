#include "webhook/recorder/actrecorder.h"

#include "corvexhook/inspector.h"

#include <QStringList>

#include <utility>

namespace Corvex::Webhook {

namespace {

using WebWrapper::EventMap;

QString item(const EventMap& data, const char* key) { return data.value(QLatin1String(key)); }

/// What pages tell of that no script can do, or that they hide.
struct UnrecordedRow {
  const char* what;
  const char* sentence;
};

const UnrecordedRow unrecorded[] = {
    {"canvas", "A press on the canvas %1 is recorded by its place at most: what is there is known to the page alone."},
    {"frame",
     "What is done in the frame %1 is not recorded: it shows a page of another origin, which scripts cannot reach."},
    {"drag", "A drag of %1 is not recorded: it ended on no other object."},
};

/// What can be checked of an object, by the property that tells it.
struct CheckRow {
  const char* what;
  const char* property;
  bool isText;
};

const CheckRow checks[] = {
    {"text", "simplifiedInnerText", true},
    {"value", "value", true},
    {"checked", "checked", false},
    {"visible", "visible", false},
};

}  // namespace

struct ActRecorder::Row {
  const char* event;
  void (ActRecorder::*take)(const QString& objectName, const EventMap& data);
  /// An act on an object is one in the context of that.
  bool isOnObject = true;
};

const ActRecorder::Row ActRecorder::rows[] = {
    {"leaving", &ActRecorder::takeLeaving, false},
    {"arrived", &ActRecorder::takeArrived, false},
    {"contextmenu", &ActRecorder::takeMenu},
    {"drag", &ActRecorder::takeDrag},
    {"unrecorded", &ActRecorder::takeUnrecorded},
    {"check", &ActRecorder::takeCheck},
    {"hover", &ActRecorder::takeHover},
    {"keys", &ActRecorder::takeKeys},
    {"promptCancelled", &ActRecorder::takeCancelledPrompt, false},
};

bool ActRecorder::compressedNonRecordingEventData(const QString& objectName, const EventMap& data) {
  if (item(data, "event") == QLatin1String("prompt") && std::exchange(m_isPromptCancelled, false)) {
    return true;
  }
  for (const Row& row : rows) {
    if (item(data, "event") == QLatin1String(row.event)) {
      if (Inspector::self()->isRecording()) {
        takeUp(objectName, data);
        enterContext(row.isOnObject ? item(data, "context") : QString());
        (this->*row.take)(objectName, data);
      }
      return true;
    }
  }
  return EventRecorder::compressedNonRecordingEventData(objectName, data);
}

void ActRecorder::takeLeaving(const QString&, const EventMap&) { m_moves.noteLeaving(); }

void ActRecorder::takeArrived(const QString&, const EventMap& data) {
  const PageMoves::Calls calls = m_moves.noteArrived(data);
  const QTime time = WebWrapper::getTimeStampFromEventData(data);
  for (int i = 0; i < calls.times; ++i) {
    flushRecordedTextInput();
    recordCall(item(data, "url"), calls.function, {}, &time);
  }
}

void ActRecorder::takeBackPress(const QString& objectName) {
  static const QStringList presses{QStringLiteral("mouseClick"), QStringLiteral("clickButton"),
                                   QStringLiteral("setFocus"), QStringLiteral("nativeMouseClick")};
  flushRecordedTextInput();
  const EventData last = lastRecordedEvent();
  if (last.objectName() == objectName && presses.contains(last.functionName())) {
    removeLastRecordedEvent();
  }
}

void ActRecorder::takeCancelledPrompt(const QString&, const EventMap& data) {
  m_isPromptCancelled = true;
  flushRecordedTextInput();
  const QTime time = WebWrapper::getTimeStampFromEventData(data);
  recordCall(QString(), "closePrompt", {nullptr}, &time);
}

void ActRecorder::takeHover(const QString& objectName, const EventMap& data) {
  flushRecordedTextInput();
  const QTime time = WebWrapper::getTimeStampFromEventData(data);
  recordCall(objectName, "hover", {}, &time);
}

void ActRecorder::takeKeys(const QString&, const EventMap& data) {
  flushRecordedTextInput();
  const QTime time = WebWrapper::getTimeStampFromEventData(data);
  recordCall(QString(), "pressKeys", {Inspector::self()->wrapString(item(data, "keys"))}, &time);
}

void ActRecorder::takeMenu(const QString& objectName, const EventMap& data) {
  takeBackPress(objectName);
  const QTime time = WebWrapper::getTimeStampFromEventData(data);
  recordCall(objectName, "openContextMenu",
             {Inspector::self()->wrapInt(item(data, "x").toInt()), Inspector::self()->wrapInt(item(data, "y").toInt())},
             &time);
}

void ActRecorder::takeDrag(const QString& objectName, const EventMap& data) {
  takeBackPress(objectName);
  const QTime time = WebWrapper::getTimeStampFromEventData(data);
  recordCall(objectName, "dragTo",
             {Inspector::self()->wrapString(nameForScripts(item(data, "to"), item(data, "toContext")))}, &time);
}

// The property becomes code of the script, so that no page may name it.
void ActRecorder::takeCheck(const QString& objectName, const EventMap& data) {
  if (item(data, "what") == QLatin1String("picture")) {
    takePicture(objectName, data);
    return;
  }
  const QString value = item(data, "value");
  const QTime time = WebWrapper::getTimeStampFromEventData(data);
  Inspector* const inspector = Inspector::self();
  for (const CheckRow& row : checks) {
    if (item(data, "what") == QLatin1String(row.what)) {
      flushRecordedTextInput();
      recordCall(objectName, "test.compare",
                 {inspector->wrapString(QString::fromLatin1(row.property)),
                  row.isText ? inspector->wrapString(value) : inspector->wrapBool(value == QLatin1String("true"))},
                 &time);
    }
  }
}

void ActRecorder::takePicture(const QString& objectName, const EventMap& data) {
  flushRecordedTextInput();
  const QTime time = WebWrapper::getTimeStampFromEventData(data);
  const FunctionCallResult<QString> file =
      m_takePicture ? m_takePicture(objectName)
                    : FunctionCallResult<QString>::failure(QStringLiteral("there is no place for it."));
  Inspector* const inspector = Inspector::self();
  if (file.failed()) {
    recordCall(QString(), "//",
               {inspector->wrapString(
                   QStringLiteral("A check of the picture of %1 is not recorded: %2").arg(objectName, file.error))},
               &time);
  } else {
    recordCall(objectName, "test.compareScreenshot", {inspector->wrapString(file.value)}, &time);
  }
}

void ActRecorder::takeUnrecorded(const QString& objectName, const EventMap& data) {
  const QTime time = WebWrapper::getTimeStampFromEventData(data);
  for (const UnrecordedRow& row : unrecorded) {
    if (item(data, "what") == QLatin1String(row.what)) {
      flushRecordedTextInput();
      recordCall(QString(), "//", {Inspector::self()->wrapString(QString::fromLatin1(row.sentence).arg(objectName))},
                 &time);
    }
  }
}

}  // namespace Corvex::Webhook
