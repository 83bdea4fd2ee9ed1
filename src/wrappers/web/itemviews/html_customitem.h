#pragma once

#include "wrappers/web/elements/html_formelement.h"
#include "wrappers/web/widgets/extensionbacked.h"

namespace Corvex::WebWrapper {

/// A tree, list or table of a toolkit, whose items only the toolkit knows.
class HTML_CustomItemView : public ExtensionBacked<HTML_FormElement> {
public:
  static constexpr const char* ScriptName = "HTML_CustomItemView";
  using ExtensionBacked<HTML_FormElement>::ExtensionBacked;
  const char* className() const override { return ScriptName; }
};

/// An item of a view.
class HTML_CustomItem : public ExtensionBacked<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_CustomItem";
  using ExtensionBacked<HTML_Object>::ExtensionBacked;
  const char* className() const override { return ScriptName; }

  /// Its number among its siblings, as "item_" and the number. Asked each time: items move.
  FunctionCallResult<QString> name() const override;
  /// Null for an item of the top level. `column` is -1 for none in particular.
  FunctionCallResult<HTML_CustomItem*> parentItem(int column);
  FunctionCallResult<HTML_Object*> itemView();
};

extern const ClassMembers HTML_CustomItem_Class;

}  // namespace Corvex::WebWrapper
