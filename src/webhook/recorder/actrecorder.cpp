#include "webhook/recorder/actrecorder.h"

#include "corvexhook/inspector.h"

namespace Corvex::Webhook {

namespace {

using WebWrapper::EventMap;

QString item(const EventMap& data, const char* key) { return data.value(QLatin1String(key)); }

}  // namespace

struct ActRecorder::Row {
  const char* event;
  void (ActRecorder::*take)(const QString& objectName, const EventMap& data);
};

const ActRecorder::Row ActRecorder::rows[] = {
    {"leaving", &ActRecorder::takeLeaving},
    {"arrived", &ActRecorder::takeArrived},
};

bool ActRecorder::compressedNonRecordingEventData(const QString& objectName, const EventMap& data) {
  for (const Row& row : rows) {
    if (item(data, "event") == QLatin1String(row.event)) {
      if (Inspector::self()->isRecording()) {
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

}  // namespace Corvex::Webhook
