#pragma once

#include "wrappers/web/object/webobject.h"

namespace Corvex::WebWrapper {

/// A link.
class HTML_Anchor : public HTML_Object {
public:
  static constexpr const char* ScriptName = "HTML_Anchor";

  using HTML_Object::HTML_Object;

  const char* className() const override;
  /// Follows the link; position, modifiers and button do not count.
  QString click(int modifierState, int x, int y, int button) override;
};

}  // namespace Corvex::WebWrapper
