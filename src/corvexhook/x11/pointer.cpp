#include "corvexhook/x11/pointer.h"

#include "corvexhook/x11/connection.h"

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

#include <algorithm>
#include <iterator>

namespace Corvex {

namespace {

/// The button that the server reports as this one.
unsigned int physicalButton(Display* display, int button) {
  unsigned char meanings[256] = {};
  const int count = XGetPointerMapping(display, meanings, static_cast<int>(std::size(meanings)));
  unsigned char* const end = meanings + std::clamp(count, 0, static_cast<int>(std::size(meanings)));
  unsigned char* const found = std::find(meanings, end, button);
  return static_cast<unsigned int>(found == end ? button : found - meanings + 1);
}

}  // namespace

QString moveXPointer(XConnection& connection, int x, int y) {
  Display* const display = connection.display();
  const int width = DisplayWidth(display, DefaultScreen(display));
  const int height = DisplayHeight(display, DefaultScreen(display));
  if (x < 0 || y < 0 || x >= width || y >= height) {
    return QStringLiteral("The point %1,%2 is not on the screen, which has %3 x %4 pixels.")
        .arg(x)
        .arg(y)
        .arg(width)
        .arg(height);
  }
  XTestFakeMotionEvent(display, DefaultScreen(display), x, y, CurrentTime);
  return connection.finish();
}

QString setXButton(XConnection& connection, int button, bool pressed) {
  XTestFakeButtonEvent(connection.display(), physicalButton(connection.display(), button), pressed ? True : False,
                       CurrentTime);
  return connection.finish();
}

}  // namespace Corvex
