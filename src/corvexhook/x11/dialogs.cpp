#include "corvexhook/x11/dialogs.h"

#include "corvexhook/x11/connection.h"
#include "corvexhook/x11/windows.h"

#include <X11/Xlib.h>

namespace Corvex {

namespace {

// Window managers put windows into frames of one or two levels.
const int deepestLevel = 3;

bool isViewable(Display* display, XWindow window, XWindowAttributes* attributes) {
  return XGetWindowAttributes(display, window, attributes) && attributes->map_state == IsViewable;
}

std::optional<XDialog> topDialogIn(Display* display, XWindow parent, int level) {
  const std::vector<XWindow> children = childrenOf(display, parent);
  for (auto child = children.rbegin(); child != children.rend(); ++child) {
    XWindowAttributes attributes = {};
    if (!isViewable(display, *child, &attributes)) {
      continue;
    }
    if (hasDialogType(display, *child)) {
      int x = 0, y = 0;
      Window below = 0;
      XTranslateCoordinates(display, *child, attributes.root, 0, 0, &x, &y, &below);
      return XDialog{x, y, attributes.width, attributes.height, classOf(display, *child)};
    }
    const std::optional<XDialog> inside = level < deepestLevel ? topDialogIn(display, *child, level + 1) : std::nullopt;
    if (inside) {
      return inside;
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<XDialog> topXDialog(XConnection& connection) {
  Display* const display = connection.display();
  return topDialogIn(display, DefaultRootWindow(display), 1);
}

}  // namespace Corvex
