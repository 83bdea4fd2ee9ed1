#pragma once

#include "corvexhook/delegate.h"

namespace Corvex::WebWrapper {

/// Lets mouse events happen at page objects. The arguments are the position in the object, x and y; any that follow
/// count for nothing. The page gets an event that was made there. A "mousemove" moves the real pointer before that, and
/// a "mouseup" clicks with it; the object is scrolled into view for both.
class ApplicationEventDelegate : public SendEventDelegate {
public:
  ApplicationEventDelegate();

  bool sendEvent(const Event* event, SharedPtr<Object> object, const ObjectList& arguments) const override;
};

}  // namespace Corvex::WebWrapper
