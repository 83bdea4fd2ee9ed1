#include "wrappers/web/html_style.h"

#include "wrappers/web/references.h"

namespace Corvex::WebWrapper {

HTML_Style::HTML_Style(const QString& objectReference, HTMLComponent* connection)
    : reference(objectReference), component(connection) {
  createdHtmlStyle(this);
}

HTML_Style::~HTML_Style() { destroyedHtmlStyle(this); }

bool HTML_Style::hasValidReference() const { return reference != QLatin1String("undefined"); }

void HTML_Style::invalidate() { reference = QStringLiteral("undefined"); }

}  // namespace Corvex::WebWrapper
