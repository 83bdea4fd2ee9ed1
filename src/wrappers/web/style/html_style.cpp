#include "wrappers/web/style/html_style.h"

#include "wrappers/web/object/references.h"

namespace Corvex::WebWrapper {

void createdHtmlStyle(HTML_Style* style) { referencedStyles.add(style, &style->reference, style->component); }

void destroyedHtmlStyle(HTML_Style* style) { referencedStyles.remove(style); }

HTML_Style::HTML_Style(const QString& objectReference, HTMLComponent* connection)
    : reference(objectReference), component(connection) {
  createdHtmlStyle(this);
}

HTML_Style::~HTML_Style() { destroyedHtmlStyle(this); }

bool HTML_Style::hasValidReference() const { return reference != deadReference(); }

void HTML_Style::invalidate() { reference = deadReference(); }

}  // namespace Corvex::WebWrapper
