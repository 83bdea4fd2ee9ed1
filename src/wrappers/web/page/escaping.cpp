#include "wrappers/web/page/escaping.h"

namespace Corvex::WebWrapper {

namespace {

int hexDigit(QChar c) {
  const int latin = c.toLower().toLatin1();
  if (latin >= '0' && latin <= '9') {
    return latin - '0';
  }
  return latin >= 'a' && latin <= 'f' ? latin - 'a' + 10 : 0;
}

int hexValue(const QString& digits) {
  int value = 0;
  for (const QChar digit : digits) {
    value = value * 16 + hexDigit(digit);
  }
  return value;
}

bool isIdentifierStart(QChar c) {
  if (c.unicode() < 128) {
    return c == QLatin1Char('$') || c == QLatin1Char('_') || c.isLetter();
  }
  return c.isLetter() || c.category() == QChar::Number_Letter;
}

bool isIdentifierPart(QChar c) {
  switch (c.category()) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Number_DecimalDigit:
    case QChar::Punctuation_Connector:
      return true;
    default:
      return isIdentifierStart(c) || c.unicode() == 0x200C || c.unicode() == 0x200D;
  }
}

}  // namespace

QString escapeObjectNameForUseAsStringLiteral(const QString& name) {
  QString text = escapeQuotes(name);
  text.replace(QLatin1Char('\r'), QLatin1String("\\r"));
  text.replace(QLatin1Char('\n'), QLatin1String("\\n"));
  return text;
}

QString escapeQuoteWithBackslash(const QString& text) {
  QString escaped = text;
  escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
  escaped.replace(QLatin1Char('\''), QLatin1String("\\'"));
  return escaped;
}

QString escapeForUseAsStringLiteral(const QString& text) {
  QString escaped = escapeQuoteWithBackslash(text);
  escaped.replace(QLatin1Char('\n'), QLatin1String("\\n"));
  escaped.remove(QLatin1Char('\r'));
  return escaped;
}

QString escapeQuotes(const QString& text) {
  QString escaped = text;
  escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
  escaped.replace(QLatin1Char('"'), QLatin1String("\\\""));
  return escaped;
}

QString quotedArrayElements(const QStringList& texts) {
  QStringList elements;
  for (const QString& text : texts) {
    QString escaped = escapeQuoteWithBackslash(text);
    // These three would end the literal.
    escaped.replace(QLatin1Char('"'), QLatin1String("\\\""));
    escaped.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    escaped.replace(QLatin1Char('\r'), QLatin1String("\\r"));
    elements << QLatin1Char('"') + escaped + QLatin1Char('"');
  }
  return elements.join(QLatin1Char(','));
}

QString unescape(const QString& text) {
  QString result;
  result.reserve(text.size());
  for (int i = 0; i < text.size(); ++i) {
    if (text.at(i) != QLatin1Char('%') || i + 1 == text.size()) {
      result += text.at(i);
      continue;
    }
    const bool wide = text.at(i + 1) == QLatin1Char('u');
    const int digits = wide ? 4 : 2;
    const int first = wide ? i + 2 : i + 1;
    result += QChar(hexValue(text.mid(first, digits)));
    i = first + digits - 1;
  }
  return result.replace(QLatin1Char('&'), QLatin1String("&amp;"));
}

QString translateLineEndings(const QString& text) {
  return QString(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

bool isValidJSIdentifier(const QString& text) {
  if (text.isEmpty() || !isIdentifierStart(text.at(0))) {
    return false;
  }
  for (const QChar c : text) {
    if (!isIdentifierPart(c)) {
      return false;
    }
  }
  return true;
}

QString addSchemeIfMissing(const QString& url) {
  if (url.isEmpty() || url.startsWith(QLatin1String("http://")) || url.startsWith(QLatin1String("https://"))) {
    return url;
  }
  return QStringLiteral("http://%1").arg(url);
}

QString undefinedAsEmptyString(const QString& text) { return text == QLatin1String("undefined") ? QString() : text; }

}  // namespace Corvex::WebWrapper
