#pragma once

#include "corvexhook/method.h"
#include "wrappers/web/export.h"
#include "wrappers/web/recording/eventpayload.h"

#include <QString>
#include <QTime>

#include <deque>
#include <memory>

namespace Corvex::WebWrapper {

class EventCompression;

/// Makes script calls of the events that pages tell of. It decides what is recorded; who keeps the calls is up to a
/// subclass. One thread.
///
/// What was recorded last is known to all loggers of the process together: the last message, of which an exact repeat
/// is dropped, and the last context.
class CORVEX_WEBWRAPPER_EXPORT EventLogger {
public:
  EventLogger();
  /// Text that is not recorded yet is lost; see `flushRecordedTextInput`.
  virtual ~EventLogger();

  /// Takes the text of a message, with or without its head. What comes while another one is worked on waits for its
  /// turn.
  virtual void logEvent(const QString& text);

  /// Appends a script call. `time` is null where a call has none of its own. The name is the address for
  /// "startBrowser", and the context for "waitForContextExists".
  virtual void recordCall(const QString& objectName, const char* functionName, const ObjectList& arguments,
                          const QTime* time) = 0;
  virtual void addUnmatchedProperty(const QString& objectName, const QString& property) = 0;
  virtual void removeUnmatchedProperties(const QString& objectName) = 0;
  virtual void doCheckWindowClosedOrHook();
  /// Comes before "doubleClick" is recorded: the clicks that it consists of may be recorded already.
  virtual void doubleClickSeen(const QString& objectName, const EventMap& data) = 0;
  /// Comes first at each event of a key.
  virtual void keyEventSeen(const QString& objectName) = 0;
  /// The name to record in place of one that a page gave.
  virtual QString adaptQualifiedName(const QString& name, const EventMap& data);
  virtual bool shouldRecordWaitForContextExists() const;
  /// Takes what counts whether or not a recording runs. True when that is all there is to do.
  virtual bool compressedNonRecordingEventData(const QString& objectName, const EventMap& data);
  /// Takes an event that became no script call; writes a warning.
  virtual void handleUncompressedEventData(const EventData& event);
  virtual EventData lastRecordedEvent() = 0;
  virtual void removeLastRecordedEvent() = 0;
  /// True keeps such a call from being recorded once more.
  virtual bool isLastRecordedCall(const QString& functionName, const QString& objectName) = 0;
  /// Whether a press on a text field is recorded as a native click, and not as the focus that it gives.
  virtual bool recordClickOnTextField() const;

  /// Works on one message.
  void recordEvent(const QString& text);
  /// The event of the catalogue that the items mean, null for none; appends its arguments.
  const Event* convertEvent(ObjectList& arguments, const QString& objectName, const EventMap& data);
  /// Records what an event means, if anything. False for an event that nobody knew what to do with.
  bool eatEvent(const Event* event, const QString& objectName, const EventMap& data);
  /// Records the text that was typed so far.
  void flushRecordedTextInput();

  EventLogger(const EventLogger&) = delete;
  EventLogger& operator=(const EventLogger&) = delete;

protected:
  /// Records that the context is waited for, if it is another one than before. Text that was typed comes first.
  void enterContext(const QString& context);

  /// While it is set, only answers of evaluations are taken.
  bool waitingForEvalAnswer = false;

private:
  friend class EventCompression;

  /// The content of the field that is typed into. Without an object name there is none.
  struct TextInput {
    QString text;
    QString objectName;
    QTime time;
    QString type;
  };

  bool lastPressWasSubmit = false;
  std::deque<QString> pendingEvents;
  std::unique_ptr<TextInput> recordedTextInput;
};

}  // namespace Corvex::WebWrapper
