#include "wrappers/web/catalogue/webobject_init.h"

#include "corvexhook/inspector.h"
#include "tracelib/tracepoint.h"
#include "wrappers/web/catalogue/catalogue.h"
#include "wrappers/web/dump/htmlobjectdumpobjecttreedelegate.h"
#include "wrappers/web/glue/castdelegate.h"
#include "wrappers/web/glue/comparisondelegate.h"
#include "wrappers/web/input/applicationeventdelegate.h"
#include "wrappers/web/readiness/webobjectgeometrydelegate.h"
#include "wrappers/web/style/csscolor.h"

namespace Corvex::WebWrapper {

namespace {

class DumpNotes : public LogInterface {
  void write(int level, const QByteArray& text) override {
    TRACE_POINT("WebObjectDump", QStringLiteral("note of level %1: %2").arg(level).arg(QString::fromUtf8(text)));
  }
};

}  // namespace

void createWebObjectClasses() {
  Namespace* const ns = Inspector::self()->globalNamespace();
  for (const ClassRow& row : Catalogue()) {
    new ScriptClass(row.name, row.superClass, *row.members, *row.kind, ns);
  }
  new HTML_Object_CastToStringDelegate;
  new HTML_Object_ComparisonDelegate;
  new WebObjectGeometryDelegate;
  new ApplicationEventDelegate;
  new HtmlObjectDumpObjectTreeDelegate(new DumpNotes);
  createCssColorDelegates();
}

}  // namespace Corvex::WebWrapper
