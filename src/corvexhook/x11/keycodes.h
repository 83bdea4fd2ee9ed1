#pragma once

#include "corvexhook/x11/xtypes.h"

namespace Corvex {

/// Which key gives a symbol, and with which modifiers: 0, 1 for Shift, 128 for the third level's key, or 129 for both.
/// False when no key gives it, or only one with other modifiers; in that case `*keycode` is set all the same. The
/// keyboard's map is read on the first call.
bool getXKeyCodeAndStateFromSym(Display* display, KeySym keysym, KeyCode* keycode, int* state);

/// Has the next call read the keyboard's map anew, as it may be another one by then.
void forgetXKeyMap();

}  // namespace Corvex
