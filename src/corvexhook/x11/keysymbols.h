#pragma once

#include "corvexhook/x11/xtypes.h"

#include <QString>

namespace Corvex {

/// A symbol's name in X11, and its character in UTF-8.
struct KeySymbol {
  const char* name;
  const char* character;
};

/// Characters beyond ASCII that have names in X11; an empty row is the last one.
extern const KeySymbol key_symbols[];

/// The X11 symbol of the first character of `str`, 0 if there is none. For some characters `*state` becomes the mask of
/// the modifiers that they often need; for others it is left alone. The mask is a guess: what a keyboard really needs
/// is told by `getXKeyCodeAndStateFromSym`.
KeySym XStringToKeysymEx(const QString& str, int* state);

}  // namespace Corvex
