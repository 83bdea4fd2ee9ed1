#include "wrappers/web/readiness/webobjectgeometrydelegate.h"

#include "shared/visibletext.h"
#include "wrappers/web/object/queryrectanglewithfunction.h"
#include "wrappers/web/object/webobject.h"
#include "wrappers/web/object/wraphtmlobject.h"

#include <cstdio>

namespace Corvex::WebWrapper {

WebObjectGeometryDelegate::WebObjectGeometryDelegate() : GeometryDelegate(QLatin1String(HTML_Object::ScriptName)) {}

GlobalBounds WebObjectGeometryDelegate::globalBounds(SharedPtr<Object> object) const {
  if (!object) {
    return {};
  }
  const FunctionCallResult<QRect> rectangle = getScreenRect(retrieveObject(object), false);
  if (rectangle.failed()) {
    std::fprintf(stderr, "Error obtaining global bounds: %s\n", qUtf8Printable(visibleText(rectangle.error)));
    return {0, 0, -1, -1, -1};
  }
  const QRect& r = rectangle.value;
  return r.isNull() ? GlobalBounds{} : GlobalBounds{r.x(), r.y(), r.width(), r.height(), -1};
}

SharedPtr<Object> WebObjectGeometryDelegate::childAt(SharedPtr<Object>, int, int) const { return nullptr; }

SharedPtr<Object> WebObjectGeometryDelegate::focusProxy(SharedPtr<Object> object) const { return object; }

}  // namespace Corvex::WebWrapper
