#pragma once

#include "corvexhook/x11/keysequence.h"

namespace Corvex {

class XConnection;

/// Presses and releases keys on the X server's keyboard. Characters that the keyboard's layout lacks are put on spare
/// keys as long as this takes; the keyboard is left as it was. Events are served meanwhile. An error, or an empty text.
QString typeOnXKeyboard(XConnection& connection, const std::vector<KeyStroke>& strokes);

}  // namespace Corvex
