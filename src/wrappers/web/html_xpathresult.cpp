#include "wrappers/web/html_xpathresult.h"

#include "wrappers/web/references.h"

namespace Corvex::WebWrapper {

HTML_XPathResult::HTML_XPathResult(const QString& objectReference, HTMLComponent* connection)
    : reference(objectReference), component(connection) {
  createdHtmlXPathResult(this);
}

HTML_XPathResult::~HTML_XPathResult() { destroyedHtmlXPathResult(this); }

bool HTML_XPathResult::hasValidReference() const { return reference != QLatin1String("undefined"); }

void HTML_XPathResult::invalidate() { reference = QStringLiteral("undefined"); }

}  // namespace Corvex::WebWrapper
