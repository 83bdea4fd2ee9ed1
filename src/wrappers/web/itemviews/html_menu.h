#pragma once

#include "wrappers/web/widgets/extensionbacked.h"

namespace Corvex::WebWrapper {

class HTML_MenuItem : public ExtensionBacked<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_MenuItem";
  using ExtensionBacked<HTML_Object>::ExtensionBacked;
  const char* className() const override { return ScriptName; }
};

class HTML_Menu : public ExtensionBacked<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_Menu";
  using ExtensionBacked<HTML_Object>::ExtensionBacked;
  const char* className() const override { return ScriptName; }

  FunctionCallResult<int> numItems() const;
  /// Counted from 0; null where the page has no menu item.
  FunctionCallResult<HTML_MenuItem*> itemAt(int index);
};

extern const ClassMembers HTML_Menu_Class;

}  // namespace Corvex::WebWrapper
