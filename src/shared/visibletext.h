#pragma once

#include <QString>

#include "shared/export.h"

namespace Corvex {

enum class LineBreaks { Shown, Kept };

/// A text as people may be shown it, wherever it comes from: what steers a terminal, turns the direction of writing,
/// cannot be seen or is no character stands there as `\u001b`, and line breaks and tabs as `\n`, `\r` and `\t`. With
/// `Kept` line feeds and tabs stay, for texts of several lines. What has no width stays where writing needs it: joiners
/// between letters of Arabic and Indic scripts and in emoji. What comes out is valid in XML.
CORVEX_EXPORT QString visibleText(const QString& text, LineBreaks lineBreaks = LineBreaks::Kept);

}  // namespace Corvex
