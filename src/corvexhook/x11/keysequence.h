#pragma once

#include "corvexhook/x11/xtypes.h"
#include "shared/functioncallresult.h"

#include <QString>

#include <vector>

namespace Corvex {

/// One key that is pressed and released, while the keys of X11 modifier masks are held.
struct KeyStroke {
  KeySym symbol = 0;
  int modifiers = 0;
};

/// The strokes of a text in which "<Return>" or "<Ctrl+Shift+End>" stand for keys, and anything else for itself: a "<"
/// without a word and ">" after it, too. Keys have the names of X11 and the usual ones, in any case of letters. An
/// error names the key that does not exist.
FunctionCallResult<std::vector<KeyStroke>> parseKeySequence(const QString& text);

/// Such a text for a text that holds no keys but only characters.
QString keySequenceOf(QString text);

}  // namespace Corvex
