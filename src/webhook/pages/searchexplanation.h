#pragma once

#include <QString>

namespace Corvex {

namespace WebWrapper {
class HTMLComponent;
}

namespace Webhook {

class BrowserWindows;

/// Why a name finds nothing in the current page, or in that of its context, as a sentence: which of its containers is
/// not there, or how many elements have its tag and what they lack; an empty text where the page cannot tell. The
/// current window stays.
QString explainFailedSearch(BrowserWindows& windows, const QString& name);

/// What makes it impossible that a name is ever found: a part without a tag name, a pattern that is none. Empty for a
/// name without such a fault.
QString faultOfName(WebWrapper::HTMLComponent& page, const QString& name);

}  // namespace Webhook
}  // namespace Corvex
