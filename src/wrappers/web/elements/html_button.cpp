#include "wrappers/web/elements/html_button.h"

#include "wrappers/web/glue/scriptclass.h"

namespace Corvex::WebWrapper {

const char* HTML_ButtonBase::className() const { return ScriptName; }

QString HTML_ButtonBase::click(int modifierState, int x, int y, int button) {
  const JavaScriptAnswer answer =
      runClickCode(getClickCode(QStringLiteral("__corvex__clickButton"), reference, modifierState, x, y, button));
  return answer.succeeded() ? QString() : QStringLiteral("Failed to click on button: %1").arg(answer.text);
}

FunctionCallResult<QString> HTML_ButtonBase::value() const { return property("value"); }

QString HTML_ButtonBase::setValue(const QString& value) { return setProperty("value", value.toUtf8().constData()); }

const char* HTML_Button::className() const { return ScriptName; }

QString HTML_Button::submit() { return click(0, 0, 0, 1); }

const char* HTML_ImageButton::className() const { return ScriptName; }

namespace {

constexpr PropertyRow buttonBaseProperties[] = {
    property<&HTML_ButtonBase::value, &HTML_ButtonBase::setValue>("value"),
};

constexpr MethodRow buttonBaseMethods[] = {
    method<&HTML_ButtonBase::setValue>("setValue", "value"),
    method<&HTML_ButtonBase::value>("value"),
};

constexpr MethodRow buttonMethods[] = {
    method<&HTML_Button::submit>("submit"),
};

}  // namespace

const ClassMembers HTML_ButtonBase_Class = classMembers(buttonBaseProperties, buttonBaseMethods);
const ClassMembers HTML_Button_Class = classMembers(buttonMethods);
}  // namespace Corvex::WebWrapper
