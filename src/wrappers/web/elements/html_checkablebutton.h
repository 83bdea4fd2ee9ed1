#pragma once

#include "wrappers/web/elements/html_button.h"

namespace Corvex::WebWrapper {

/// What check boxes and radio buttons share. The page hears of each change, by a click or by `setChecked`.
class CheckableButton : public HTML_ButtonBase {
public:
  using HTML_ButtonBase::HTML_ButtonBase;

  QString click(int modifierState, int x, int y, int button) override;

  FunctionCallResult<bool> checked() const;
  QString setChecked(bool checked);
};

class HTML_CheckBox : public CheckableButton {
public:
  static constexpr const char* ScriptName = "HTML_CheckBox";

  using CheckableButton::CheckableButton;

  const char* className() const override;
};

class HTML_RadioButton : public CheckableButton {
public:
  static constexpr const char* ScriptName = "HTML_RadioButton";

  using CheckableButton::CheckableButton;

  const char* className() const override;
};

extern const ClassMembers HTML_CheckBox_Class;
extern const ClassMembers HTML_RadioButton_Class;

}  // namespace Corvex::WebWrapper
