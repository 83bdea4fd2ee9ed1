#pragma once

#include <QString>
#include <QStringList>

#include "shared/export.h"

namespace Corvex {

/// The text in double quotes; backslash, double quote, tab, line feed and carriage return are written with a backslash.
CORVEX_EXPORT QString quoteString(const QString& text);

/// The texts, each quoted, with one blank between them. The inverse of unquoteStringList().
CORVEX_EXPORT QString quoteStringList(const QStringList& texts);

/// Reads a sequence of quoted strings, with any white space around them, into `list`. Gives false, warns, and leaves
/// `list` as it was, when a character stands outside quotes, a quote is not closed, or a backslash is followed by
/// something that quoteString() never writes.
CORVEX_EXPORT bool unquoteStringList(const QString& text, QStringList* list);

/// Reads exactly one quoted string into `result`; false and a warning otherwise, and `result` is left as it was.
CORVEX_EXPORT bool unquoteString(const QString& text, QString* result);

}  // namespace Corvex
