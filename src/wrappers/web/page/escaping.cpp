#include "wrappers/web/page/escaping.h"

#include "shared/jsescape.h"

namespace Corvex::WebWrapper {

namespace {

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
  return undoEscape(text, MalformedEscape::AddUp).replace(QLatin1Char('&'), QLatin1String("&amp;"));
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
