#pragma once

#include "wrappers/web/widgets/extensionbacked.h"

namespace Corvex::WebWrapper {

class HTML_ProgressBar : public ExtensionBacked<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_ProgressBar";
  using ExtensionBacked<HTML_Object>::ExtensionBacked;
  const char* className() const override { return ScriptName; }

  FunctionCallResult<int> value() const;
  FunctionCallResult<int> minimum() const;
  FunctionCallResult<int> maximum() const;
  QString setValue(int value);
};

extern const ClassMembers HTML_ProgressBar_Class;

}  // namespace Corvex::WebWrapper
