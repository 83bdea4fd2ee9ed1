#include "wrappers/web/elements/html_option.h"

#include "wrappers/web/glue/scriptclass.h"

namespace Corvex::WebWrapper {

const char* HTML_Option::className() const { return ScriptName; }

FunctionCallResult<QString> HTML_Option::text() const { return property("text"); }

QString HTML_Option::setText(const QString& text) { return setProperty("text", text.toUtf8().constData()); }

FunctionCallResult<QString> HTML_Option::value() const { return property("value"); }

QString HTML_Option::setValue(const QString& value) { return setProperty("value", value.toUtf8().constData()); }

FunctionCallResult<bool> HTML_Option::selected() const { return boolProperty("selected"); }

FunctionCallResult<bool> HTML_Option::defaultSelected() const { return boolProperty("defaultSelected"); }

FunctionCallResult<int> HTML_Option::index() const {
  return integerProperty("index", "Error: cannot convert '%1' into index number");
}

namespace {

constexpr PropertyRow properties[] = {
    property<&HTML_Option::defaultSelected>("defaultSelected"),
    property<&HTML_Option::index>("index"),
    property<&HTML_Option::selected>("selected"),
    property<&HTML_Option::text, &HTML_Option::setText>("text"),
    property<&HTML_Option::value, &HTML_Option::setValue>("value"),
};

constexpr MethodRow methods[] = {
    method<&HTML_Option::defaultSelected>("defaultSelected"),
    method<&HTML_Option::index>("index"),
    method<&HTML_Option::selected>("selected"),
    method<&HTML_Option::setText>("setText", "text"),
    method<&HTML_Option::setValue>("setValue", "value"),
    method<&HTML_Option::text>("text"),
    method<&HTML_Option::value>("value"),
};

}  // namespace

const ClassMembers HTML_Option_Class = classMembers(properties, methods);

}  // namespace Corvex::WebWrapper
