#pragma once

#include "corvexhook/delegate.h"
#include "wrappers/web/export.h"

namespace Corvex::WebWrapper {

/// Tells the host framework where page objects are on the screen. Asking scrolls nothing.
class CORVEX_WEBWRAPPER_EXPORT WebObjectGeometryDelegate : public GeometryDelegate {
public:
  WebObjectGeometryDelegate();

  /// All -1 for an object that is not on the screen; without a size, and reported on standard error, for one whose
  /// page gives no rectangle.
  GlobalBounds globalBounds(SharedPtr<Object> object) const override;
  /// Always null: the page itself looks up what is at a point.
  SharedPtr<Object> childAt(SharedPtr<Object> object, int x, int y) const override;
  /// The object itself.
  SharedPtr<Object> focusProxy(SharedPtr<Object> object) const override;
};

}  // namespace Corvex::WebWrapper
