#include "wrappers/web/itemviews/html_calendarview.h"

#include "wrappers/web/glue/scriptclass.h"
#include "wrappers/web/object/retrievehtmlobject.h"

namespace Corvex::WebWrapper {

FunctionCallResult<int> HTML_CalendarView::numVisibleEvents() const {
  return numberOf(evaluateJS(extensionCall("getVisibleEventCount")), "Error obtaining number of events: %1",
                  "Could not convert number of events '%1' to number.");
}

FunctionCallResult<HTML_Object*> HTML_CalendarView::visibleEventAt(int index) {
  return htmlObjectFromJavaScriptResult(component, extensionCall("getVisibleEventAt", index), QString(), 0);
}

namespace {

constexpr MethodRow methods[] = {
    method<&HTML_CalendarView::numVisibleEvents>("numVisibleEvents"),
    method<&HTML_CalendarView::visibleEventAt>("visibleEventAt", "index"),
};

}  // namespace

const ClassMembers HTML_CalendarView_Class = classMembers(methods);

}  // namespace Corvex::WebWrapper
