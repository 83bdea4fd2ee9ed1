#pragma once

#include "wrappers/web/recording/eventlogger.h"

#include <QHash>
#include <QVector>

namespace Corvex {
class Recorder;

namespace Webhook {

/// Records what pages tell of, with a recorder that keeps the calls.
class EventRecorder : public WebWrapper::EventLogger {
public:
  /// Borrows the recorder.
  explicit EventRecorder(Recorder& calls) : m_calls(calls) {}

  void recordCall(const QString& objectName, const char* functionName, const ObjectList& arguments,
                  const QTime* time) override;
  void addUnmatchedProperty(const QString& objectName, const QString& property) override;
  void removeUnmatchedProperties(const QString& objectName) override;
  void doubleClickSeen(const QString& objectName, const WebWrapper::EventMap& data) override;
  void keyEventSeen(const QString& objectName) override;
  bool compressedNonRecordingEventData(const QString& objectName, const WebWrapper::EventMap& data) override;
  EventData lastRecordedEvent() override;
  void removeLastRecordedEvent() override;
  bool isLastRecordedCall(const QString& functionName, const QString& objectName) override;

private:
  bool takeDialog(const QString& event, const WebWrapper::EventMap& data);
  void recordText(const QString& objectName, const QString& text, const QTime* time);
  void append(const EventData& call, const QTime* time);

  Recorder& m_calls;
  /// The event that is worked on.
  QString m_event;
  /// When the last calls came, the last one last.
  QVector<QTime> m_times;
  /// Whether the last call is a click that a browser made of a Return.
  bool m_lastIsReturn = false;
  /// The content of each field as the page told it last, by the names of the fields.
  QHash<QString, QString> m_contents;
};

}  // namespace Webhook
}  // namespace Corvex
