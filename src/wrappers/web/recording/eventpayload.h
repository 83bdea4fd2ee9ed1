#pragma once

#include "corvexhook/object.h"
#include "wrappers/web/export.h"

#include <QMap>
#include <QString>
#include <QTime>

namespace Corvex::WebWrapper {

/// What a page tells of one event: its items by their keys, and the time as "timestamp", in milliseconds since 1970. An
/// item without "=" is its own value.
using EventMap = QMap<QString, QString>;

/// From the text of a message, with or without its head. Of equal keys the last one counts. A message without a time
/// gets the present one; the empty text gives an empty map.
CORVEX_WEBWRAPPER_EXPORT EventMap parseEvent(const QString& text);

/// Undoes JavaScript's `escape`, and then turns every "&amp;" into "&". Digits that are none count as 0.
CORVEX_WEBWRAPPER_EXPORT QString unescapeItem(const QString& text);

/// The time of day of an event; the present one where the event has none.
CORVEX_WEBWRAPPER_EXPORT QTime getTimeStampFromEventData(const EventMap& data);

/// 1 for Alt, 2 for Control, 4 for Shift and 16 for the right button, added up.
CORVEX_WEBWRAPPER_EXPORT int getModifiers(const EventMap& data);

/// The modifiers if there are any, and the place of the click.
CORVEX_WEBWRAPPER_EXPORT ObjectList getMouseClickArguments(const EventMap& data);

/// For the log.
QString shownItems(const EventMap& data);

}  // namespace Corvex::WebWrapper
