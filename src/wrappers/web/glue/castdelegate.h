#pragma once

#include "corvexhook/delegate.h"

namespace Corvex::WebWrapper {

/// A page object in a script's text reads as its reference.
class HTML_Object_CastToStringDelegate : public CastDelegate {
public:
  HTML_Object_CastToStringDelegate();

  bool canCastTo(const Class* target) const override;
  bool canCastFrom(const Class* source) const override;
  SharedPtr<Object> castTo(SharedPtr<Object> object, const Class* target) const override;
  SharedPtr<Object> castFrom(SharedPtr<Object> object, const Class* target) const override;
};

}  // namespace Corvex::WebWrapper
