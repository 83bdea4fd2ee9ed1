#include "wrappers/web/elements/html_checkablebutton.h"

#include "wrappers/web/glue/scriptclass.h"

namespace Corvex::WebWrapper {

QString CheckableButton::click(int modifierState, int x, int y, int button) {
  QString error = focus();
  if (error.isEmpty()) {
    error = HTML_ButtonBase::click(modifierState, x, y, button);
  }
  // The click may have taken the page away.
  if (!error.isEmpty() || !hasValidReference()) {
    return error;
  }
  return sendChangeEvent("Error triggering change event after click: %1");
}

FunctionCallResult<bool> CheckableButton::checked() const { return boolProperty("checked"); }

QString CheckableButton::setChecked(bool checked) {
  const QString error = setProperty("checked", checked);
  return error.isEmpty() ? sendChangeEvent("Error sending change event for radio button: %1") : error;
}

const char* HTML_CheckBox::className() const { return ScriptName; }

const char* HTML_RadioButton::className() const { return ScriptName; }

namespace {

constexpr PropertyRow properties[] = {
    property<&CheckableButton::checked, &CheckableButton::setChecked>("checked"),
};

constexpr MethodRow methods[] = {
    method<&CheckableButton::checked>("checked"),
    method<&CheckableButton::setChecked>("setChecked", "checked"),
};

}  // namespace

const ClassMembers HTML_CheckBox_Class = classMembers(properties, methods);
const ClassMembers HTML_RadioButton_Class = classMembers(properties, methods);

}  // namespace Corvex::WebWrapper
