#include "wrappers/web/itemviews/html_menu.h"

#include "wrappers/web/glue/scriptclass.h"
#include "wrappers/web/object/retrievehtmlobject.h"

namespace Corvex::WebWrapper {

FunctionCallResult<int> HTML_Menu::numItems() const {
  return numberOf(evaluateJS(extensionCall("getMenuItemCount")), "Error obtaining number of items: %1",
                  "Cannot convert '%1' to number of items");
}

FunctionCallResult<HTML_MenuItem*> HTML_Menu::itemAt(int index) {
  return withPrefix(
      QStringLiteral("Error obtaining menu item %1: ").arg(index),
      typeCheckedHtmlObjectFromJavaScriptResult<HTML_MenuItem>(component, extensionCall("getMenuItemAt", index)));
}

namespace {

constexpr PropertyRow properties[] = {
    property<&HTML_Menu::numItems>("numItems"),
};

constexpr MethodRow methods[] = {
    method<&HTML_Menu::itemAt>("itemAt", "index"),
    method<&HTML_Menu::numItems>("numItems"),
};

}  // namespace

const ClassMembers HTML_Menu_Class = classMembers(properties, methods);

}  // namespace Corvex::WebWrapper
