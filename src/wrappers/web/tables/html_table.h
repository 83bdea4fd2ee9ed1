#pragma once

#include "wrappers/web/widgets/extensionbacked.h"

namespace Corvex::WebWrapper {

/// A table for whose cells a script in the page answers.
class HTML_Table : public ExtensionBacked<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_Table";
  using ExtensionBacked<HTML_Object>::ExtensionBacked;
  const char* className() const override { return ScriptName; }
};

}  // namespace Corvex::WebWrapper
