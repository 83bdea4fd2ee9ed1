#pragma once

#include "wrappers/web/export.h"

#include <QString>
#include <QStringList>

namespace Corvex::WebWrapper {

/// For an object name between double quotes: backslash, double quote, carriage return and line feed are escaped.
CORVEX_WEBWRAPPER_EXPORT QString escapeObjectNameForUseAsStringLiteral(const QString& name);

/// For a text between single quotes that holds no line break: backslash and single quote are escaped.
CORVEX_WEBWRAPPER_EXPORT QString escapeQuoteWithBackslash(const QString& text);

/// For text that is typed into a field, between single quotes. Line feeds are escaped, carriage returns are dropped.
CORVEX_WEBWRAPPER_EXPORT QString escapeForUseAsStringLiteral(const QString& text);

/// For an expression between double quotes: backslash and double quote are escaped.
QString escapeQuotes(const QString& text);

/// The texts as elements of a JavaScript array, each between double quotes, joined by ",".
QString quotedArrayElements(const QStringList& texts);

/// Undoes JavaScript's `escape`, and then turns every "&" into "&amp;". A "%" without digits after it stays as it is.
CORVEX_WEBWRAPPER_EXPORT QString unescape(const QString& text);

/// Line breaks of two characters become single line feeds.
QString translateLineEndings(const QString& text);

/// Whether the text can follow a dot in JavaScript.
bool isValidJSIdentifier(const QString& text);

/// A text without "http://" or "https://" at its start gets "http://" there; the empty text stays empty.
CORVEX_WEBWRAPPER_EXPORT QString addSchemeIfMissing(const QString& url);

/// The text "undefined" stands for no value.
QString undefinedAsEmptyString(const QString& text);

}  // namespace Corvex::WebWrapper
