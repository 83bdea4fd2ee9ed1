#pragma once

#include "wrappers/web/object/webobject.h"

namespace Corvex::WebWrapper {

class HTML_Image : public HTML_Object {
public:
  static constexpr const char* ScriptName = "HTML_Image";

  using HTML_Object::HTML_Object;

  const char* className() const override;
};

}  // namespace Corvex::WebWrapper
