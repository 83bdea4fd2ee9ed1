#include "wrappers/web/lookup/itemchildren.h"

#include "shared/visibletext.h"
#include "wrappers/web/itemviews/html_calendarview.h"
#include "wrappers/web/itemviews/html_menu.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/htmlcomponent.h"

#include <cstdio>

namespace Corvex::WebWrapper {

namespace {

const unsigned int itemsTimeoutMs = 10000;

void append(HTML_Object* object, ObjectList* list) {
  if (object) {
    list->push_back(wrapObject(object));
  }
}

}  // namespace

ObjectList parseItemViewBasedChildInfo(HTMLComponent* component, const QString& text) {
  ObjectList list;
  if (text == QLatin1String("[err]")) {
    return list;
  }
  QString name;
  QString reference;
  QString buffer;
  for (const QChar c : text) {
    if (c == QLatin1Char('|')) {
      name = std::exchange(buffer, QString());
    } else if (c == QLatin1Char('~')) {
      reference = std::exchange(buffer, QString());
    } else if (c == QLatin1Char('#')) {
      append(htmlObjectFromReferenceInfo(component, std::exchange(buffer, QString()), reference, name), &list);
    } else {
      buffer += c;
    }
  }
  return list;
}

FunctionCallResult<ObjectList> fetchItems(const char* function, const HTML_Object& parent,
                                          const QString& extensionObject) {
  const QString code = QStringLiteral("try{%1(%2, %3 );}catch(e){'[err]';}")
                           .arg(QLatin1String(function), parent.reference, extensionObject);
  const JavaScriptAnswer answer = parent.component->evaluateJS(code, itemsTimeoutMs);
  return answer.succeeded()
             ? FunctionCallResult<ObjectList>::success(parseItemViewBasedChildInfo(parent.component, answer.text))
             : FunctionCallResult<ObjectList>::failure(answer.text);
}

ObjectList itemsOfView(HTML_Object* object) {
  const auto* view = dynamic_cast<HTML_CustomItemView*>(object);
  if (!view) {
    return {};
  }
  const FunctionCallResult<ObjectList> items =
      fetchItems("__corvex__fetchItemViewChildren", *view, view->extensionObject());
  if (items.failed()) {
    std::fprintf(stderr, "Error obtaining itemview children: %s\n", qUtf8Printable(visibleText(items.error)));
  }
  return items.value;
}

ObjectList itemsOfMenu(HTML_Object* object) {
  ObjectList list;
  auto* menu = dynamic_cast<HTML_Menu*>(object);
  const FunctionCallResult<int> count = menu ? menu->numItems() : FunctionCallResult<int>::success(0);
  if (count.failed()) {
    std::fprintf(stderr, "Error obtaining number of menu items: %s\n", qUtf8Printable(visibleText(count.error)));
  }
  for (int i = 0; i < count.value; ++i) {
    const FunctionCallResult<HTML_MenuItem*> item = menu->itemAt(i);
    if (item.failed()) {
      std::fprintf(stderr, "%s\n", qUtf8Printable(visibleText(item.error)));
      return list;
    }
    append(item.value, &list);
  }
  return list;
}

ObjectList eventsOfCalendar(HTML_Object* object) {
  ObjectList list;
  auto* calendar = dynamic_cast<HTML_CalendarView*>(object);
  const FunctionCallResult<int> count = calendar ? calendar->numVisibleEvents() : FunctionCallResult<int>::success(0);
  if (count.failed()) {
    std::fprintf(stderr, "Error obtaining number of events: %s\n", qUtf8Printable(visibleText(count.error)));
  }
  for (int i = 0; i < count.value; ++i) {
    const FunctionCallResult<HTML_Object*> event = calendar->visibleEventAt(i);
    if (event.failed()) {
      std::fprintf(stderr, "Error obtaining event at %d: %s\n", i, qUtf8Printable(visibleText(event.error)));
    }
    append(event.value, &list);
  }
  return list;
}

}  // namespace Corvex::WebWrapper
