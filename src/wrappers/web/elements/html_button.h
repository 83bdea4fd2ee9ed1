#pragma once

#include "wrappers/web/elements/html_formelement.h"

namespace Corvex::WebWrapper {

/// What all buttons share: a caption, and a click of their own.
class HTML_ButtonBase : public HTML_FormElement {
public:
  static constexpr const char* ScriptName = "HTML_ButtonBase";

  using HTML_FormElement::HTML_FormElement;

  const char* className() const override;
  QString click(int modifierState, int x, int y, int button) override;

  FunctionCallResult<QString> value() const;
  QString setValue(const QString& value);
};

class HTML_Button : public HTML_ButtonBase {
public:
  static constexpr const char* ScriptName = "HTML_Button";

  using HTML_ButtonBase::HTML_ButtonBase;

  const char* className() const override;
  /// A click.
  QString submit();
};

/// A button that shows an image.
class HTML_ImageButton : public HTML_ButtonBase {
public:
  static constexpr const char* ScriptName = "HTML_ImageButton";

  using HTML_ButtonBase::HTML_ButtonBase;

  const char* className() const override;
};

extern const ClassMembers HTML_ButtonBase_Class;
extern const ClassMembers HTML_Button_Class;

}  // namespace Corvex::WebWrapper
