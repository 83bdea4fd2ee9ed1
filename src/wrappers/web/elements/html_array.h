#pragma once

#include "wrappers/web/object/webobject.h"

namespace Corvex::WebWrapper {

/// A list of page objects in the page.
class HTML_Array : public HTML_Object {
public:
  static constexpr const char* ScriptName = "HTML_Array";

  using HTML_Object::HTML_Object;

  const char* className() const override;

  FunctionCallResult<int> length() const;
  /// Counted from 0.
  FunctionCallResult<HTML_Object*> at(int index);
};

extern const ClassMembers HTML_Array_Class;

}  // namespace Corvex::WebWrapper
