#pragma once

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <algorithm>

#include "support/files.h"

namespace House {

inline QString root() { return QStringLiteral(CORVEX_SOURCE_DIR) + QLatin1Char('/'); }

/// The files below `folder` whose names match, as paths relative to the project's root, sorted.
inline QStringList filesBelow(const QString& folder, const QStringList& nameFilters) {
  QStringList paths;
  QDirIterator files(root() + folder, nameFilters, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    paths.append(QDir(root()).relativeFilePath(files.next()));
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

inline QString textOf(const QString& path) { return QString::fromUtf8(TestSupport::readFile(root() + path)); }

/// C++ text without its comments. Good enough for looking for names: texts in quotes are not looked at.
inline QString withoutComments(QString text) {
  static const QRegularExpression comment(QStringLiteral("//[^\\n]*|/\\*.*?\\*/"),
                                          QRegularExpression::DotMatchesEverythingOption);
  return text.remove(comment);
}

/// What the pattern's first group catches, for each match.
inline QStringList allMatches(const QString& text, const char* pattern) {
  const QRegularExpression expression(QLatin1String(pattern), QRegularExpression::MultilineOption);
  QStringList found;
  for (auto match = expression.globalMatch(text); match.hasNext();) {
    found.append(match.next().captured(1));
  }
  return found;
}

}  // namespace House
