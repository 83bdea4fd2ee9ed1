#pragma once

#include <QString>
#include <QStringList>
#include <ostream>

// GoogleTest finds these by the arguments' namespace, and prints Qt's texts as texts.

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

inline void PrintTo(const QStringList& list, std::ostream* out) {
  *out << '[' << list.join(QStringLiteral(" | ")).toStdString() << ']';
}
