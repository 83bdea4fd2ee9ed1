#pragma once

#include <QString>

namespace Corvex {

namespace WebWrapper {
class HTMLComponent;
}

namespace Webhook {

class BrowserWindows;
class Connection;

/// Why a name finds nothing in the current page, or in that of its context, as a sentence: which of its containers is
/// not there, or how many elements have its tag and what they lack; an empty text where the page cannot tell. The
/// current window stays.
QString explainFailedSearch(BrowserWindows& windows, const QString& name);

/// Which contexts a look-up of the name went through, as a sentence; empty for a name that says its context.
QString searchedContexts(const BrowserWindows& windows, const QString& name);

/// The window of the context that a name begins with. Null for a name without one, or where no window has it; and
/// while no window shows a dialog, as then it does not matter which is asked.
Connection* windowMeant(const BrowserWindows& windows, const QString& name);

/// What makes it impossible that a name is ever found: a part without a tag name, a pattern that is none. Empty for a
/// name without such a fault.
QString faultOfName(WebWrapper::HTMLComponent& page, const QString& name);

}  // namespace Webhook
}  // namespace Corvex
