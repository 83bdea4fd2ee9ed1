#include "corvexhook/x11/xtest.h"

#include "corvexhook/x11/connection.h"

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

namespace Corvex {

QString whyNoXInput(XConnection& connection) {
  if (!connection.isUsable()) {
    return connection.error();
  }
  int event = 0, error = 0, major = 0, minor = 0;
  if (!XTestQueryExtension(connection.display(), &event, &error, &major, &minor)) {
    return QStringLiteral(
        "The X server takes no native input: its extension XTEST is missing or turned off. Set DISPLAY to a server "
        "that has it, or run this program by xvfb-run.");
  }
  XTestGrabControl(connection.display(), True);
  return connection.finish();
}

}  // namespace Corvex
