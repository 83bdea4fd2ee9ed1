#include "shared/visibletext.h"
#include "wrappers/web/lookup/webobjectdelegate.h"
#include "wrappers/web/object/wraphtmlobject.h"

#include <cstdio>

namespace Corvex::WebWrapper {

WebObjectComparisonDelegate::WebObjectComparisonDelegate(const QString& className) : ComparisonDelegate(className) {}

bool WebObjectComparisonDelegate::compare(SharedPtr<Object> a, SharedPtr<Object> b) const { return sameObjects(a, b); }

bool WebObjectComparisonDelegate::sameObjects(SharedPtr<Object> a, SharedPtr<Object> b) const {
  const HTML_Object* first = retrieveObject(a);
  const HTML_Object* second = retrieveObject(b);
  if (!first || !second || !first->component || first->component != second->component) {
    return false;
  }
  const JavaScriptAnswer answer = first->evaluateJS(
      QStringLiteral("if( %1 === %2 ) { true; } else { false; }").arg(first->reference, second->reference));
  if (!answer.succeeded()) {
    std::fprintf(stderr, "Error comparing JS references %s and %s: %s\n", qUtf8Printable(visibleText(first->reference)),
                 qUtf8Printable(visibleText(second->reference)), qUtf8Printable(visibleText(answer.text)));
    return false;
  }
  return answer.text == QLatin1String("true");
}

}  // namespace Corvex::WebWrapper
