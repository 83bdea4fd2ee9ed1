#include "shared/visibletext.h"

#include <algorithm>

namespace Corvex {

namespace {

struct Range {
  ushort first;
  ushort last;
};

const Range invisible[] = {
    {0x0000, 0x001f},  // C0 controls
    {0x007f, 0x009f},  // Delete and the C1 controls, among them one that begins terminal commands.
    {0x061c, 0x061c}, {0x200e, 0x200f}, {0x202a, 0x202e}, {0x2066, 0x2069},  // Marks and overrides of direction.
    {0x2028, 0x2029},                                                        // Line and paragraph separators.
    {0xfeff, 0xfeff},                                                        // The byte order mark.
    {0xfffe, 0xffff},                                                        // No characters.
};

bool isHalfPair(const QString& text, int i) {
  const QChar c = text.at(i);
  return (c.isHighSurrogate() && !(i + 1 < text.size() && text.at(i + 1).isLowSurrogate())) ||
         (c.isLowSurrogate() && !(i > 0 && text.at(i - 1).isHighSurrogate()));
}

bool isHidden(const QString& text, int i) {
  const ushort code = text.at(i).unicode();
  if (code >= ' ' && code < 0x7f) {
    return false;
  }
  return isHalfPair(text, i) || std::any_of(std::begin(invisible), std::end(invisible), [code](const Range& range) {
           return code >= range.first && code <= range.last;
         });
}

QString escaped(QChar c) {
  switch (c.unicode()) {
    case '\n':
      return QStringLiteral("\\n");
    case '\r':
      return QStringLiteral("\\r");
    case '\t':
      return QStringLiteral("\\t");
    default:
      return QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
  }
}

}  // namespace

QString visibleText(const QString& text, LineBreaks lineBreaks) {
  QString visible;
  visible.reserve(text.size());
  for (int i = 0; i < text.size(); ++i) {
    const QChar c = text.at(i);
    const bool isKept = lineBreaks == LineBreaks::Kept && (c == QLatin1Char('\n') || c == QLatin1Char('\t'));
    if (isKept || !isHidden(text, i)) {
      visible += c;
    } else {
      visible += escaped(c);
    }
  }
  return visible;
}

}  // namespace Corvex
