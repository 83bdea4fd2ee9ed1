#pragma once

#include "wrappers/web/elements/html_array.h"

namespace Corvex::WebWrapper {

class HTML_Document : public HTML_Object {
public:
  static constexpr const char* ScriptName = "HTML_Document";

  using HTML_Object::HTML_Object;

  const char* className() const override;

  FunctionCallResult<HTML_Object*> getElementById(const QString& id);
  FunctionCallResult<HTML_Array*> getElementsByTagName(const QString& tagName);
};

extern const ClassMembers HTML_Document_Class;

}  // namespace Corvex::WebWrapper
