#include "wrappers/web/catalogue/webobject_init.h"

#include "corvexhook/inspector.h"
#include "wrappers/web/catalogue/catalogue.h"
#include "wrappers/web/glue/castdelegate.h"
#include "wrappers/web/glue/comparisondelegate.h"
#include "wrappers/web/input/applicationeventdelegate.h"
#include "wrappers/web/readiness/webobjectgeometrydelegate.h"
#include "wrappers/web/style/csscolor.h"

namespace Corvex::WebWrapper {

void createWebObjectClasses() {
  Namespace* const ns = Inspector::self()->globalNamespace();
  for (const ClassRow& row : Catalogue()) {
    new ScriptClass(row.name, row.superClass, *row.members, *row.kind, ns);
  }
  new HTML_Object_CastToStringDelegate;
  new HTML_Object_ComparisonDelegate;
  new WebObjectGeometryDelegate;
  new ApplicationEventDelegate;
  createCssColorDelegates();
}

}  // namespace Corvex::WebWrapper
