#pragma once

#include <QString>

namespace Corvex {

namespace WebWrapper {
class HTMLComponent;
}

namespace Webhook {

/// Why a name finds nothing in a page, as a sentence with the number of elements of its tag; an empty text where the
/// page cannot tell.
QString explainFailedSearch(WebWrapper::HTMLComponent& page, const QString& name);

}  // namespace Webhook
}  // namespace Corvex
