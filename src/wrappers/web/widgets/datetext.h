#pragma once

#include "corvexhook/datetime.h"
#include "shared/functioncallresult.h"

#include <QString>

namespace Corvex::WebWrapper {

// Dates between the driver and the extension scripts of pages, whose scripts see the page's own date objects.

/// The expression for a date in the page. Seconds are left out.
QString serializeDateToJSDate(const DateTime& date);

/// The code that asks an extension script for a date, in the form that `parseDate` reads.
QString getDateCommand(const QString& function, const QString& reference, const QString& extension);

/// Reads year, month, day, hour and minute, parted by commas.
FunctionCallResult<DateTime> parseDate(const QString& text);

/// A date as error sentences show it.
QString dateInWords(const DateTime& date);

}  // namespace Corvex::WebWrapper
