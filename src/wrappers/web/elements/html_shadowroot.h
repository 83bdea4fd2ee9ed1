#pragma once

#include "wrappers/web/object/webobject.h"

namespace Corvex::WebWrapper {

class HTML_ShadowRoot : public HTML_Object {
public:
  static constexpr const char* ScriptName = "HTML_ShadowRoot";

  using HTML_Object::HTML_Object;

  const char* className() const override;
};

}  // namespace Corvex::WebWrapper
