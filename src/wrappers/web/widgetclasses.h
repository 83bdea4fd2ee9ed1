#pragma once

#include "wrappers/web/extensionbacked.h"
#include "wrappers/web/html_button.h"
#include "wrappers/web/html_select.h"

namespace Corvex::WebWrapper {

/// A page object that keeps a text which tells it from others of its parent.
template <typename Base>
class WithText : public Base {
public:
  WithText(const QString& name, const QString& objectReference, HTMLComponent* connection, const QString& objectText)
      : Base(name, objectReference, connection), text(objectText) {}

  QString text;
};

// Classes of toolkit widgets, which so far have the members of their super classes.

class HTML_BackBaseButton : public HTML_ButtonBase {
public:
  static constexpr const char* ScriptName = "HTML_BackBaseButton";
  using HTML_ButtonBase::HTML_ButtonBase;
  const char* className() const override { return ScriptName; }
};

class HTML_BackBaseListView : public HTML_FormElement {
public:
  static constexpr const char* ScriptName = "HTML_BackBaseListView";
  using HTML_FormElement::HTML_FormElement;
  const char* className() const override { return ScriptName; }
};

class HTML_BackBaseSpinner : public HTML_FormElement {
public:
  static constexpr const char* ScriptName = "HTML_BackBaseSpinner";
  using HTML_FormElement::HTML_FormElement;
  const char* className() const override { return ScriptName; }
};

class HTML_BackBaseComboBox : public HTML_Select {
public:
  static constexpr const char* ScriptName = "HTML_BackBaseComboBox";
  using HTML_Select::HTML_Select;
  const char* className() const override { return ScriptName; }
};

class HTML_TreeBase : public HTML_FormElement {
public:
  static constexpr const char* ScriptName = "HTML_TreeBase";
  using HTML_FormElement::HTML_FormElement;
  const char* className() const override { return ScriptName; }
};

class HTML_DojoTree : public HTML_TreeBase {
public:
  static constexpr const char* ScriptName = "HTML_DojoTree";
  using HTML_TreeBase::HTML_TreeBase;
  const char* className() const override { return ScriptName; }
};

class HTML_DojoSplitPane : public HTML_FormElement {
public:
  static constexpr const char* ScriptName = "HTML_DojoSplitPane";
  using HTML_FormElement::HTML_FormElement;
  const char* className() const override { return ScriptName; }
};

class HTML_GWCFormFieldBox : public HTML_FormElement {
public:
  static constexpr const char* ScriptName = "HTML_GWCFormFieldBox";
  using HTML_FormElement::HTML_FormElement;
  const char* className() const override { return ScriptName; }
};

class HTML_GWCTable : public HTML_FormElement {
public:
  static constexpr const char* ScriptName = "HTML_GWCTable";
  using HTML_FormElement::HTML_FormElement;
  const char* className() const override { return ScriptName; }
};

class HTML_KiwiChoice : public HTML_FormElement {
public:
  static constexpr const char* ScriptName = "HTML_KiwiChoice";
  using HTML_FormElement::HTML_FormElement;
  const char* className() const override { return ScriptName; }
};

class HTML_KiwiTree : public HTML_TreeBase {
public:
  static constexpr const char* ScriptName = "HTML_KiwiTree";
  using HTML_TreeBase::HTML_TreeBase;
  const char* className() const override { return ScriptName; }
};

class HTML_KiwiTable : public HTML_FormElement {
public:
  static constexpr const char* ScriptName = "HTML_KiwiTable";
  using HTML_FormElement::HTML_FormElement;
  const char* className() const override { return ScriptName; }
};

class HTML_KiwiTreeTable : public HTML_FormElement {
public:
  static constexpr const char* ScriptName = "HTML_KiwiTreeTable";
  using HTML_FormElement::HTML_FormElement;
  const char* className() const override { return ScriptName; }
};

class HTML_KiwiMatrixTable : public HTML_FormElement {
public:
  static constexpr const char* ScriptName = "HTML_KiwiMatrixTable";
  using HTML_FormElement::HTML_FormElement;
  const char* className() const override { return ScriptName; }
};

class HTML_KiwiMoreMenuItem : public HTML_FormElement {
public:
  static constexpr const char* ScriptName = "HTML_KiwiMoreMenuItem";
  using HTML_FormElement::HTML_FormElement;
  const char* className() const override { return ScriptName; }
};

class HTML_KiwiMoreMenu : public WithText<HTML_FormElement> {
public:
  static constexpr const char* ScriptName = "HTML_KiwiMoreMenu";
  using WithText<HTML_FormElement>::WithText;
  const char* className() const override { return ScriptName; }
};

class HTML_KiwiTableCell : public WithText<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_KiwiTableCell";
  using WithText<HTML_Object>::WithText;
  const char* className() const override { return ScriptName; }
};

class HTML_KiwiTreeTableCell : public WithText<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_KiwiTreeTableCell";
  using WithText<HTML_Object>::WithText;
  const char* className() const override { return ScriptName; }
};

class HTML_KiwiMatrix : public WithText<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_KiwiMatrix";
  using WithText<HTML_Object>::WithText;
  const char* className() const override { return ScriptName; }
};

class HTML_KiwiMatrixCell : public WithText<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_KiwiMatrixCell";
  using WithText<HTML_Object>::WithText;
  const char* className() const override { return ScriptName; }
};

class HTML_QxWidget : public HTML_Object {
public:
  static constexpr const char* ScriptName = "HTML_QxWidget";
  using HTML_Object::HTML_Object;
  const char* className() const override { return ScriptName; }
};

class HTML_QxWidgetElement : public HTML_Object {
public:
  static constexpr const char* ScriptName = "HTML_QxWidgetElement";
  using HTML_Object::HTML_Object;
  const char* className() const override { return ScriptName; }
};

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

class HTML_ProgressBar : public ExtensionBacked<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_ProgressBar";
  using ExtensionBacked<HTML_Object>::ExtensionBacked;
  const char* className() const override { return ScriptName; }
};

class HTML_DateChooser : public ExtensionBacked<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_DateChooser";
  using ExtensionBacked<HTML_Object>::ExtensionBacked;
  const char* className() const override { return ScriptName; }
};

class HTML_Table : public ExtensionBacked<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_Table";
  using ExtensionBacked<HTML_Object>::ExtensionBacked;
  const char* className() const override { return ScriptName; }
};

}  // namespace Corvex::WebWrapper
