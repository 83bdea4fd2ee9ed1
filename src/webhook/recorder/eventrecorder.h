#pragma once

#include "webhook/recorder/messageorder.h"
#include "wrappers/web/recording/eventlogger.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <memory>

namespace Corvex {
class Recorder;

namespace Webhook {

class BrowserWindows;
class Connection;
class RecordedWindows;

/// Records what pages tell of, with a recorder that keeps the calls.
class EventRecorder : public WebWrapper::EventLogger {
public:
  /// Borrows the recorder.
  explicit EventRecorder(Recorder& calls);
  ~EventRecorder() override;

  /// The page that the recording begins with: recorded by `begin`, or before what happens in it earlier.
  void setFirstPage(const QString& address) { m_firstPage = address; }
  void begin();
  /// Whether what is typed into the object is a password.
  bool isPassword(const QString& objectName) const { return m_passwords.contains(objectName); }

  /// From now on calls name the windows of a browser as scripts see them, and tell of the change from one to another
  /// and of windows that a person closes. Borrows them.
  void watch(const BrowserWindows& windows);

  /// To be called again and again. Works on the messages that have waited for others long enough, and records text that
  /// has stood still for a moment, so that it is kept whatever happens: what is typed into the same field next takes
  /// its place.
  void keepUp();
  /// Works on all messages, and records all text.
  void finish();

  /// The message waits until `keepUp`.
  void logEvent(const QString& text) override;
  void recordCall(const QString& objectName, const char* functionName, const ObjectList& arguments,
                  const QTime* time) override;
  void addUnmatchedProperty(const QString& objectName, const QString& property) override;
  void removeUnmatchedProperties(const QString& objectName) override;
  QString adaptQualifiedName(const QString& name, const WebWrapper::EventMap& data) override;
  void doubleClickSeen(const QString& objectName, const WebWrapper::EventMap& data) override;
  void keyEventSeen(const QString& objectName) override;
  bool compressedNonRecordingEventData(const QString& objectName, const WebWrapper::EventMap& data) override;
  EventData lastRecordedEvent() override;
  void removeLastRecordedEvent() override;
  bool isLastRecordedCall(const QString& functionName, const QString& objectName) override;

protected:
  /// From now on that event is worked on. Doing it again changes nothing.
  void takeUp(const QString& objectName, const WebWrapper::EventMap& data);
  /// A name that the page of that event gave an object, for scripts; `context` is the object's inside the page.
  QString nameForScripts(const QString& name, const QString& context) const;

private:
  bool takeDialog(const QString& event, const WebWrapper::EventMap& data);
  // Each is true where that is all there is to do.
  bool takeKey(const QString& objectName);
  bool takeReturn(const QString& objectName, bool goesDown);
  bool takeFieldSet(const QString& objectName);
  bool takeKeyClick(const QString& objectName);
  bool takeWindow();
  bool isClickOfReturn() const;
  /// The message with the context's name for scripts.
  QString withOutsideContext(const QString& text) const;
  void noteClosed(const Connection& window);
  void enterWindow(const QString& window, const QString& context);
  void recordText(const QString& objectName, const QString& text, const QTime* time);
  void append(const EventData& call, const QTime* time);
  /// Of the event that is worked on.
  QString event() const;
  void workOnNext();
  void recordRepeatedPress();

  Recorder& m_calls;
  MessageOrder m_messages;
  std::unique_ptr<RecordedWindows> m_windows;
  /// The one that is current in the script, by what the page knows itself by.
  QString m_window;
  /// Those that their pages are about to close.
  QStringList m_closing;
  /// Empty once it is recorded.
  QString m_firstPage;
  /// The event that is worked on.
  WebWrapper::EventMap m_data;
  /// The function of a press that is like the last call; empty for none.
  QString m_repeatedPress;
  /// When the last calls came, the last one last.
  QVector<QTime> m_times;
  /// When text that was typed will have stood still.
  QDeadlineTimer m_idle{QDeadlineTimer::Forever};
  bool m_isIdleFlush = false;
  /// The field whose text is the last call, and was ended by nothing but a pause.
  QString m_openField;
  /// The field whose value is the last call.
  QString m_openSetting;
  /// Whether a page told that Return went down, and not yet that it came up.
  bool m_isReturnDown = false;
  /// Where it was pressed last. What comes up there afterwards went down before.
  QString m_returnField;
  /// Whether a page told of a click by a key, and not yet of the click itself.
  bool m_isKeyClick = false;
  /// Whether the last call is a click that a browser made of a Return.
  bool m_lastIsReturn = false;
  /// The content of each field as the page told it last, by the names of the fields.
  QHash<QString, QString> m_contents;
  QSet<QString> m_passwords;
};

}  // namespace Webhook
}  // namespace Corvex
