#pragma once

#include "webhook/inspect/names.h"

#include <QString>

namespace Corvex::Webhook {

/// Which elements a report lists.
enum class NamesListed { NotFoundOnes, All };

/// A line per element, its outcome and its name first, then a table with a row per rule, then the times.
QString namesReport(const NamesCheck& check, NamesListed listed);

/// The same as one JSON object: `elements`, `summary` by rule, and the milliseconds.
QString namesReportAsJson(const NamesCheck& check, NamesListed listed);

/// Whether no element was lost but those that the rules lose.
bool namesAreGood(const NamesCheck& check);

}  // namespace Corvex::Webhook
