#pragma once

#include "corvexhook/object.h"

#include <QDateTime>

namespace Corvex {

/// A point in time as scripts see it, in the local zone.
class CORVEXHOOK_EXPORT DateTime {
public:
  DateTime() = default;
  DateTime(int year, int month, int day) : m_value(QDate(year, month, day).startOfDay()) {}
  explicit DateTime(const QDateTime& value) : m_value(value) {}

  const QDateTime& value() const { return m_value; }

private:
  QDateTime m_value;
};

/// The script class "DateTime" with the read-only properties year, month, day, hours, minutes.
CORVEXHOOK_EXPORT const Class* objectModelDateTimeClass();
CORVEXHOOK_EXPORT SharedPtr<Object> wrapDateTime(const DateTime& value);
/// An invalid value for anything that is no date.
CORVEXHOOK_EXPORT DateTime unwrapDateTime(SharedPtr<Object> object);

}  // namespace Corvex
