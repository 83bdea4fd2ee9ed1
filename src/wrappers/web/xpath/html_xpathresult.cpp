#include "wrappers/web/xpath/html_xpathresult.h"

#include "wrappers/web/object/references.h"

namespace Corvex::WebWrapper {

void createdHtmlXPathResult(HTML_XPathResult* result) {
  referencedXPathResults.add(result, &result->reference, result->component);
}

void destroyedHtmlXPathResult(HTML_XPathResult* result) { referencedXPathResults.remove(result); }

HTML_XPathResult::HTML_XPathResult(const QString& objectReference, HTMLComponent* connection)
    : reference(objectReference), component(connection) {
  createdHtmlXPathResult(this);
}

HTML_XPathResult::~HTML_XPathResult() { destroyedHtmlXPathResult(this); }

bool HTML_XPathResult::hasValidReference() const { return reference != deadReference(); }

void HTML_XPathResult::invalidate() { reference = deadReference(); }

}  // namespace Corvex::WebWrapper
