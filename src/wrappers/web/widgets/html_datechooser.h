#pragma once

#include "corvexhook/datetime.h"
#include "wrappers/web/widgets/extensionbacked.h"

namespace Corvex::WebWrapper {

class HTML_DateChooser : public ExtensionBacked<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_DateChooser";
  using ExtensionBacked<HTML_Object>::ExtensionBacked;
  const char* className() const override { return ScriptName; }

  FunctionCallResult<DateTime> date() const;
  QString setDate(const DateTime& date);
};

extern const ClassMembers HTML_DateChooser_Class;

}  // namespace Corvex::WebWrapper
