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
    {0x061c, 0x061c}, {0x200e, 0x200f}, {0x202a, 0x202e},
    {0x2066, 0x2069},  // Marks and overrides of direction.
    {0x2028, 0x2029},  // Line and paragraph separators.
    {0x00ad, 0x00ad}, {0x034f, 0x034f}, {0x180b, 0x180f},
    {0x200b, 0x200b},                                      // Hyphens, spaces and operators
    {0x2060, 0x2065}, {0x206a, 0x206f}, {0xfff9, 0xfffb},  // of no width.
    {0x115f, 0x1160}, {0x17b4, 0x17b5}, {0x3164, 0x3164},
    {0xffa0, 0xffa0},                    // Letters that fill a place and show nothing.
    {0xdb40, 0xdb43},                    // What begins tags and other selectors, which have no width either.
    {0xfeff, 0xfeff},                    // The byte order mark.
    {0xfdd0, 0xfdef}, {0xfffe, 0xffff},  // No characters.
};

/// What joiners belong between: letters of Arabic and Indic scripts, and emoji.
const Range joinable[] = {
    {0x0600, 0x10ff}, {0x1780, 0x1cff}, {0x2190, 0x2bff}, {0xa840, 0xabff},
    {0xd800, 0xdfff}, {0xfb50, 0xfe0f}, {0xfe70, 0xfefc},
};

template <std::size_t Count>
bool isIn(const Range (&ranges)[Count], QChar c) {
  return std::any_of(std::begin(ranges), std::end(ranges),
                     [code = c.unicode()](const Range& range) { return code >= range.first && code <= range.last; });
}

bool isHalfPair(const QString& text, int i) {
  const QChar c = text.at(i);
  return (c.isHighSurrogate() && !(i + 1 < text.size() && text.at(i + 1).isLowSurrogate())) ||
         (c.isLowSurrogate() && !(i > 0 && text.at(i - 1).isHighSurrogate()));
}

bool isLowOfHidden(const QString& text, int i) {
  return text.at(i).isLowSurrogate() && i > 0 && isIn(invisible, text.at(i - 1));
}

QChar neighbour(const QString& text, int i) { return i >= 0 && i < text.size() ? text.at(i) : QChar(); }

/// A joiner that joins nothing, and a selector of a form after what has one form only, would just be unseen.
bool isOutOfPlace(const QString& text, int i) {
  const ushort code = text.at(i).unicode();
  const QChar before = neighbour(text, i - 1);
  const QChar after = neighbour(text, i + 1);
  if (code == 0x200c || code == 0x200d) {
    return !isIn(joinable, before) || !isIn(joinable, after) || isIn(invisible, before) || isIn(invisible, after);
  }
  const bool isSelector = code >= 0xfe00 && code <= 0xfe0f;
  const bool isKeycap = before.unicode() < 0x80 && after.unicode() == 0x20e3;
  return isSelector && !isKeycap && (before.unicode() < 0xa9 || (before.unicode() & 0xfff0) == 0xfe00);
}

bool isHidden(const QString& text, int i) {
  const ushort code = text.at(i).unicode();
  if (code >= ' ' && code < 0x7f) {
    return false;
  }
  return isHalfPair(text, i) || isIn(invisible, text.at(i)) || isLowOfHidden(text, i) || isOutOfPlace(text, i);
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
