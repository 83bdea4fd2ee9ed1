#pragma once

#include "wrappers/web/object/webobject.h"

namespace Corvex::WebWrapper {

class HTML_Form : public HTML_Object {
public:
  static constexpr const char* ScriptName = "HTML_Form";

  using HTML_Object::HTML_Object;

  const char* className() const override;
  QString submit();
};

extern const ClassMembers HTML_Form_Class;

}  // namespace Corvex::WebWrapper
