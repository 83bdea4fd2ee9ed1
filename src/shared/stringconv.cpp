#include "shared/stringconv.h"

#include <QDebug>

namespace Corvex {

namespace {

struct Escape {
  char written;
  char meant;
};

constexpr Escape escapes[] = {{'\\', '\\'}, {'"', '"'}, {'t', '\t'}, {'n', '\n'}, {'r', '\r'}};

const Escape* escapeFor(QChar character) {
  for (const Escape& escape : escapes) {
    if (character == QLatin1Char(escape.meant)) {
      return &escape;
    }
  }
  return nullptr;
}

const Escape* escapeWrittenAs(QChar character) {
  for (const Escape& escape : escapes) {
    if (character == QLatin1Char(escape.written)) {
      return &escape;
    }
  }
  return nullptr;
}

void warnUnknownEscape(QChar character, const QString& text) {
  const ushort code = character.unicode();
  if (code > 0xff) {
    qWarning("Corvex::Settings: unknown quoted character with hex code 0x%x in %s", code, qUtf8Printable(text));
  } else {
    qWarning("Corvex::Settings: unknown quoted character '%c' (0x%x) in %s", code, code, qUtf8Printable(text));
  }
}

bool warnNotDelimited(const QString& text) {
  qWarning("Corvex::Settings: string not delimited by quotes in %s", qUtf8Printable(text));
  return false;
}

/// Reads one string whose opening quote stands before `position`, and leaves `position` after its closing quote.
bool readQuoted(const QString& text, int& position, QString& result) {
  while (position < text.size()) {
    const QChar character = text.at(position++);
    if (character == QLatin1Char('"')) {
      return true;
    }
    if (character != QLatin1Char('\\')) {
      result += character;
      continue;
    }
    if (position == text.size()) {
      break;
    }
    const QChar escaped = text.at(position++);
    const Escape* const escape = escapeWrittenAs(escaped);
    if (!escape) {
      warnUnknownEscape(escaped, text);
      return false;
    }
    result += QLatin1Char(escape->meant);
  }
  return warnNotDelimited(text);
}

}  // namespace

QString quoteString(const QString& text) {
  QString result(QLatin1Char('"'));
  result.reserve(text.size() + 2);
  for (const QChar character : text) {
    if (const Escape* const escape = escapeFor(character)) {
      result += QLatin1Char('\\');
      result += QLatin1Char(escape->written);
    } else {
      result += character;
    }
  }
  return result + QLatin1Char('"');
}

QString quoteStringList(const QStringList& texts) {
  QStringList quoted;
  for (const QString& text : texts) {
    quoted.append(quoteString(text));
  }
  return quoted.join(QLatin1Char(' '));
}

bool unquoteStringList(const QString& text, QStringList* list) {
  QStringList found;
  int position = 0;
  while (position < text.size()) {
    const QChar character = text.at(position++);
    if (character.isSpace()) {
      continue;
    }
    if (character != QLatin1Char('"')) {
      return warnNotDelimited(text);
    }
    QString member;
    if (!readQuoted(text, position, member)) {
      return false;
    }
    found.append(member);
  }
  *list = found;
  return true;
}

bool unquoteString(const QString& text, QString* result) {
  QStringList list;
  if (!unquoteStringList(text, &list)) {
    return false;
  }
  if (list.size() != 1) {
    qWarning("Corvex::Settings: entry is not a string in %s", qUtf8Printable(text));
    return false;
  }
  *result = list.first();
  return true;
}

}  // namespace Corvex
