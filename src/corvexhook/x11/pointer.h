#pragma once

#include <QString>

namespace Corvex {

class XConnection;

/// Errors, or empty texts. A point has to be on the screen.
QString moveXPointer(XConnection& connection, int x, int y);
/// `button` as X11 counts: 1 is the left one, 2 the middle one, 3 the right one, and 4 to 7 turn the wheel up, down,
/// left and right. Where the user has swapped buttons, the one with that meaning is taken.
QString setXButton(XConnection& connection, int button, bool pressed);

}  // namespace Corvex
