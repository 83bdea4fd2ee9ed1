#pragma once

#include "corvexhook/delegate.h"

namespace Corvex::WebWrapper {

/// Page objects are equal when they are one object in the page.
class HTML_Object_ComparisonDelegate : public ComparisonDelegate {
public:
  HTML_Object_ComparisonDelegate();

  bool compare(SharedPtr<Object> a, SharedPtr<Object> b) const override;
  bool sameObjects(SharedPtr<Object> a, SharedPtr<Object> b) const override;
};

}  // namespace Corvex::WebWrapper
