#include "wrappers/web/widgets/datetext.h"

#include <QStringList>

#include <array>

namespace Corvex::WebWrapper {

namespace {

const std::array<const char*, 5> partNames = {"year", "month", "day", "hour", "minute"};

using Parts = std::array<int, partNames.size()>;
using DateResult = FunctionCallResult<DateTime>;

QString filledIn(QString text, const DateTime& date) {
  const QDate day = date.value().date();
  const QTime time = date.value().time();
  for (const int part : Parts{day.year(), day.month(), day.day(), time.hour(), time.minute()}) {
    text = text.arg(part);
  }
  return text;
}

}  // namespace

// The page counts months from 0.
QString serializeDateToJSDate(const DateTime& date) {
  return filledIn(QStringLiteral("(new Date(%1,%2-1,%3,%4,%5))"), date);
}

QString getDateCommand(const QString& function, const QString& reference, const QString& extension) {
  return QStringLiteral("__corvex__convertJSDateToDateTimeString( %1Extension.%2(%3));")
      .arg(extension, function, reference);
}

DateResult parseDate(const QString& text) {
  const QStringList texts = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
  const DateResult unreadable = DateResult::failure(QStringLiteral("Could not parse date string '%1'.").arg(text));
  Parts parts{};
  if (texts.size() != static_cast<int>(parts.size())) {
    return unreadable;
  }
  for (std::size_t i = 0; i < parts.size(); ++i) {
    bool isNumber = false;
    parts[i] = texts[static_cast<int>(i)].toInt(&isNumber);
    if (!isNumber) {
      return DateResult::failure(
          QStringLiteral("Could not parse %1 in date string '%2'.").arg(QLatin1String(partNames[i]), text));
    }
  }
  // A date and time of Qt replaces a time that there is none of by midnight.
  const QDate day(parts[0], parts[1], parts[2]);
  const QTime time(parts[3], parts[4]);
  return day.isValid() && time.isValid() ? DateResult::success(DateTime(QDateTime(day, time))) : unreadable;
}

QString dateInWords(const DateTime& date) { return filledIn(QStringLiteral("%1/%2/%3 %4:%5"), date); }

}  // namespace Corvex::WebWrapper
