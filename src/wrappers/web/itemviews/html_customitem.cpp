#include "wrappers/web/itemviews/html_customitem.h"

#include "wrappers/web/glue/scriptclass.h"
#include "wrappers/web/object/retrievehtmlobject.h"

namespace Corvex::WebWrapper {

FunctionCallResult<QString> HTML_CustomItem::name() const {
  const JavaScriptAnswer answer =
      evaluateJS(QStringLiteral("__corvex__hierarchicalItemName(%1, %2);").arg(extensionObject(), reference));
  if (!answer.succeeded() || answer.text == QLatin1String("[err]")) {
    return FunctionCallResult<QString>::failure(QStringLiteral("Error obtaining item name: %1").arg(answer.text));
  }
  return FunctionCallResult<QString>::success(answer.text);
}

FunctionCallResult<HTML_CustomItem*> HTML_CustomItem::parentItem(int column) {
  return withPrefix(
      QStringLiteral("Error fetching parent item for column '%1': ").arg(column),
      typeCheckedHtmlObjectFromJavaScriptResult<HTML_CustomItem>(component, extensionCall("parentItem", column)));
}

FunctionCallResult<HTML_Object*> HTML_CustomItem::itemView() {
  return withPrefix(QStringLiteral("Error fetching itemview: "),
                    htmlObjectFromJavaScriptResult(component, extensionCall("itemView"), QString(), 0));
}

namespace {

constexpr MethodRow methods[] = {
    method<&HTML_CustomItem::itemView>("itemView"),
    method<&HTML_CustomItem::parentItem>("parentItem", "column"),
};

}  // namespace

const ClassMembers HTML_CustomItem_Class = classMembers(methods);

}  // namespace Corvex::WebWrapper
