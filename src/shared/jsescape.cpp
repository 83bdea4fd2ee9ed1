#include "shared/jsescape.h"

namespace Corvex {

namespace {

/// -1 where it is no hexadecimal digit.
int hexDigit(QChar c) {
  const int latin = c.toLower().toLatin1();
  if (latin >= '0' && latin <= '9') {
    return latin - '0';
  }
  return latin >= 'a' && latin <= 'f' ? latin - 'a' + 10 : -1;
}

struct CodeUnit {
  int value = 0;
  bool isWellFormed = false;
};

CodeUnit readDigits(const QStringRef& digits, int count) {
  CodeUnit unit{0, digits.size() == count};
  for (const QChar c : digits) {
    const int digit = hexDigit(c);
    unit.isWellFormed = unit.isWellFormed && digit >= 0;
    unit.value = unit.value * 16 + qMax(digit, 0);
  }
  return unit;
}

}  // namespace

QString undoEscape(const QString& text, MalformedEscape malformed) {
  QString result;
  result.reserve(text.size());
  for (int i = 0; i < text.size(); ++i) {
    if (text.at(i) != QLatin1Char('%') || i + 1 == text.size()) {
      result += text.at(i);
      continue;
    }
    const bool isWide = text.at(i + 1) == QLatin1Char('u');
    const int count = isWide ? 4 : 2;
    const int first = isWide ? i + 2 : i + 1;
    const CodeUnit unit = readDigits(text.midRef(first, count), count);
    if (!unit.isWellFormed && malformed == MalformedEscape::Keep) {
      result += text.at(i);
      continue;
    }
    result += QChar(unit.value);
    i = first + count - 1;
  }
  return result;
}

}  // namespace Corvex
