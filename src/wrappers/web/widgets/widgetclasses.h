#pragma once

#include "wrappers/web/elements/html_formelement.h"
#include "wrappers/web/widgets/extensionbacked.h"

namespace Corvex::WebWrapper {

// Widgets that an extension script of the page answers for, which so far have the members of their super classes.

class HTML_CustomComboBox : public ExtensionBacked<HTML_FormElement> {
public:
  static constexpr const char* ScriptName = "HTML_CustomComboBox";
  using ExtensionBacked<HTML_FormElement>::ExtensionBacked;
  const char* className() const override { return ScriptName; }
};

class HTML_CustomSelectList : public ExtensionBacked<HTML_FormElement> {
public:
  static constexpr const char* ScriptName = "HTML_CustomSelectList";
  using ExtensionBacked<HTML_FormElement>::ExtensionBacked;
  const char* className() const override { return ScriptName; }
};

class HTML_CustomText : public ExtensionBacked<HTML_FormElement> {
public:
  static constexpr const char* ScriptName = "HTML_CustomText";
  using ExtensionBacked<HTML_FormElement>::ExtensionBacked;
  const char* className() const override { return ScriptName; }
};

class HTML_CustomButtonBase : public ExtensionBacked<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_CustomButtonBase";
  using ExtensionBacked<HTML_Object>::ExtensionBacked;
  const char* className() const override { return ScriptName; }
};

class HTML_CustomButton : public HTML_CustomButtonBase {
public:
  static constexpr const char* ScriptName = "HTML_CustomButton";
  using HTML_CustomButtonBase::HTML_CustomButtonBase;
  const char* className() const override { return ScriptName; }
};

class HTML_CustomCheckbox : public HTML_CustomButtonBase {
public:
  static constexpr const char* ScriptName = "HTML_CustomCheckbox";
  using HTML_CustomButtonBase::HTML_CustomButtonBase;
  const char* className() const override { return ScriptName; }
};

class HTML_CustomRadioButton : public HTML_CustomButtonBase {
public:
  static constexpr const char* ScriptName = "HTML_CustomRadioButton";
  using HTML_CustomButtonBase::HTML_CustomButtonBase;
  const char* className() const override { return ScriptName; }
};

class HTML_MenuButton : public HTML_CustomButtonBase {
public:
  static constexpr const char* ScriptName = "HTML_MenuButton";
  using HTML_CustomButtonBase::HTML_CustomButtonBase;
  const char* className() const override { return ScriptName; }
};

class HTML_TabWidget : public ExtensionBacked<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_TabWidget";
  using ExtensionBacked<HTML_Object>::ExtensionBacked;
  const char* className() const override { return ScriptName; }
};

class HTML_Tab : public ExtensionBacked<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_Tab";
  using ExtensionBacked<HTML_Object>::ExtensionBacked;
  const char* className() const override { return ScriptName; }
};

class HTML_ColorField : public ExtensionBacked<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_ColorField";
  using ExtensionBacked<HTML_Object>::ExtensionBacked;
  const char* className() const override { return ScriptName; }
};

class HTML_ExpandableSectionHeader : public ExtensionBacked<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_ExpandableSectionHeader";
  using ExtensionBacked<HTML_Object>::ExtensionBacked;
  const char* className() const override { return ScriptName; }
};

}  // namespace Corvex::WebWrapper
