#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

namespace TestSupport {

/// Writes a file and the directories above it; false when that failed.
inline bool writeFile(const QString& path, const QByteArray& content) {
  QFile file(path);
  return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
         file.write(content) == content.size();
}

/// The content of a file; empty when it cannot be read.
inline QByteArray readFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace TestSupport
