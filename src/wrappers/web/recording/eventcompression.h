#pragma once

#include "wrappers/web/recording/eventlogger.h"

namespace Corvex::WebWrapper {

/// One event as the rows of the decision see it.
struct LoggedEvent {
  const EventLogger& logger;
  QString name;
  QString objectName;
  const EventMap& data;
  QString type;
  QTime time;

  QString item(const char* key) const { return data.value(QLatin1String(key)); }
  bool has(const char* key) const { return data.contains(QLatin1String(key)); }
};

struct CallRow;

/// Makes of one event the script call that it means, by the tables of the implementation: by the kind of the event, the
/// type of the object and what the page told besides.
class EventCompression {
public:
  /// All are borrowed.
  EventCompression(EventLogger& logger, const QString& eventName, const QString& objectName, const EventMap& data);

  /// False for an event that nobody knew what to do with.
  bool run();

private:
  bool takeKey();
  bool typeReturn();
  bool typeText();
  bool takeColor();
  /// By the first row that applies; true where none does.
  bool takeByRows(const CallRow* rows);
  void record(const char* functionName, const QString& objectName, const ObjectList& arguments);
  void keepText(const QString& text);
  /// The object that an item names in place of the event's own.
  QString objectNamedBy(const char* key);

  EventLogger& m_logger;
  const LoggedEvent m_event;
};

}  // namespace Corvex::WebWrapper
