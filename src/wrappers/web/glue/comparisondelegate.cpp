#include "wrappers/web/glue/comparisondelegate.h"

#include "shared/visibletext.h"
#include "wrappers/web/object/wraphtmlobject.h"

#include <cstdio>

namespace Corvex::WebWrapper {

HTML_Object_ComparisonDelegate::HTML_Object_ComparisonDelegate() : ComparisonDelegate(QStringLiteral("HTML_Object")) {}

bool HTML_Object_ComparisonDelegate::compare(SharedPtr<Object> a, SharedPtr<Object> b) const {
  return sameObjects(a, b);
}

bool HTML_Object_ComparisonDelegate::sameObjects(SharedPtr<Object> a, SharedPtr<Object> b) const {
  const HTML_Object* first = retrieveObject(a);
  HTML_Object* second = retrieveObject(b);
  if (!first || !second) {
    return first == second;
  }
  // Pages number their references alike.
  if (first->component != second->component) {
    return false;
  }
  const FunctionCallResult<bool> same = first->sameAs(second);
  if (same.failed()) {
    std::fprintf(stderr, "%s\n", qUtf8Printable(visibleText(same.error)));
  }
  return same.value;
}

}  // namespace Corvex::WebWrapper
