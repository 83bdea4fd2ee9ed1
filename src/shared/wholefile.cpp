#include "shared/wholefile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>

namespace Corvex {

namespace {

/// A device that is full takes a part, and calls that no error.
QString whyNotWritten(const QFileDevice& file) {
  return file.error() == QFileDevice::NoError ? qt_error_string(ENOSPC) : file.errorString();
}

}  // namespace

QString writeWholeFile(const QString& path, const QByteArray& bytes) {
  const QFileInfo info(path);
  if (info.exists() && !info.isFile()) {
    QFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    return isWritten ? QString() : whyNotWritten(file);
  }
  QSaveFile file(path);
  const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
  return isWritten ? QString() : whyNotWritten(file);
}

QString whyNotWritable(const QString& path) {
  const QFileInfo file(path);
  const QFileInfo folder(file.absolutePath());
  if (file.isDir()) {
    return QStringLiteral("it is a directory");
  }
  if (file.exists() && !file.isFile()) {
    return file.isWritable() ? QString() : QStringLiteral("permission denied");
  }
  if (!folder.isDir()) {
    return QStringLiteral("its directory does not exist");
  }
  const bool isWritable = folder.isWritable() && (!file.exists() || file.isWritable());
  return isWritable ? QString() : QStringLiteral("permission denied");
}

}  // namespace Corvex
