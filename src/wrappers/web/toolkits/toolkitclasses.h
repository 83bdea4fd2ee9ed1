#pragma once

#include "wrappers/web/elements/html_button.h"
#include "wrappers/web/elements/html_select.h"

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

}  // namespace Corvex::WebWrapper
