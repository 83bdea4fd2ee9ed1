#include "wrappers/web/recording/eventpayload.h"

#include "corvexhook/inspector.h"
#include "shared/jsescape.h"
#include "tracelib/tracepoint.h"
#include "wrappers/web/page/timehelpers.h"

#include <QDateTime>
#include <QStringList>

namespace Corvex::WebWrapper {

namespace {

const char* const channel = "WebEventLogger";

struct ModifierBit {
  const char* key;
  const char* value;
  int bit;
};

constexpr ModifierBit modifierBits[] = {
    {"altKey", "true", 1},
    {"ctrlKey", "true", 2},
    {"shiftKey", "true", 4},
    {"button", "2", 16},
};

QString shown(unsigned long long stamp, const QDateTime& time) {
  return QStringLiteral(" as integer: %1 as qdatetime: %2")
      .arg(stamp)
      .arg(time.toString(QStringLiteral("MM/dd/yyyy hh:mm:ss:zzz")));
}

/// Takes the stamp from the front of the parts, if it stands there.
unsigned long long takeStamp(QStringList& parts) {
  const QString head = QStringLiteral("logevent");
  const QString first = parts.first();
  const unsigned long long stamp = (first.startsWith(head) ? first.mid(head.size()) : first).toULongLong();
  QDateTime time;
  if (msecsToDateTime(stamp, &time)) {
    parts.removeFirst();
    TRACE_POINT(channel, QStringLiteral("converted timestamp string: '%1'").arg(first) + shown(stamp, time));
    return stamp;
  }
  const QDateTime present = QDateTime::currentDateTime();
  const auto milliseconds = static_cast<unsigned long long>(present.toMSecsSinceEpoch());
  TRACE_POINT(channel, QStringLiteral("using current date/time as timestamp;") + shown(milliseconds, present));
  return milliseconds;
}

void insertItem(EventMap& data, const QString& part) {
  const int equals = part.indexOf(QLatin1Char('='));
  QString value = unescapeItem(part.mid(equals + 1));
  // A name that was escaped twice.
  if (value.startsWith(QLatin1String("%7BtagName"))) {
    value.replace(0, 3, QLatin1Char('{'));
  }
  data.insert(part.left(equals), value);
}

}  // namespace

QString unescapeItem(const QString& text) {
  return undoEscape(text, MalformedEscape::AddUp).replace(QLatin1String("&amp;"), QLatin1String("&"));
}

EventMap parseEvent(const QString& text) {
  TRACE_POINT(channel, QStringLiteral("Parsing event data: '%1'").arg(text));
  EventMap data;
  QStringList parts = text.split(QLatin1Char('&'), Qt::SkipEmptyParts);
  if (parts.isEmpty()) {
    return data;
  }
  data.insert(QStringLiteral("timestamp"), QString::number(takeStamp(parts)));
  for (const QString& part : parts) {
    insertItem(data, part);
  }
  TRACE_POINT(channel, QStringLiteral("Parsed data: %1").arg(shownItems(data)));
  return data;
}

QTime getTimeStampFromEventData(const EventMap& data) {
  QDateTime time;
  const bool isKnown = msecsToDateTime(data.value(QStringLiteral("timestamp")).toULongLong(), &time);
  return isKnown ? time.time() : QTime::currentTime();
}

int getModifiers(const EventMap& data) {
  int modifiers = 0;
  for (const ModifierBit& row : modifierBits) {
    modifiers |= data.value(QLatin1String(row.key)) == QLatin1String(row.value) ? row.bit : 0;
  }
  return modifiers;
}

ObjectList getMouseClickArguments(const EventMap& data) {
  ObjectList arguments;
  const int modifiers = getModifiers(data);
  if (modifiers != 0) {
    arguments.push_back(Inspector::self()->wrapInt(modifiers));
  }
  for (const char* place : {"x", "y"}) {
    arguments.push_back(Inspector::self()->wrapInt(data.value(QLatin1String(place)).toInt()));
  }
  return arguments;
}

QString shownItems(const EventMap& data) {
  QStringList items;
  for (auto item = data.begin(); item != data.end(); ++item) {
    items << item.key() + QLatin1Char('=') + item.value();
  }
  return items.join(QLatin1String(", "));
}

}  // namespace Corvex::WebWrapper
