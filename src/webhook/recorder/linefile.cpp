#include "webhook/recorder/linefile.h"

#include <QFileInfo>

namespace Corvex::Webhook {

LineFile::~LineFile() {
  if (m_isNew && m_file.size() == 0) {
    m_file.remove();
  }
}

QString LineFile::open(const QString& path, Mode mode) {
  m_begins.clear();
  m_file.setFileName(path);
  const QFileInfo file(path);
  if (file.exists() && !file.isFile() && !file.isDir()) {
    return QStringLiteral("The file '%1' cannot be written: it is no regular file.").arg(path);
  }
  const bool isNew = !file.exists();
  // What a buffer could not write would be tried again, and stand in the file later.
  if (!m_file.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) {
    return failure("cannot be written");
  }
  m_isNew = isNew;
  m_replaces = mode == Replace;
  if (m_replaces) {
    return QString();
  }
  const qint64 size = m_file.size();
  char last = '\n';
  if (size > 0 && m_file.seek(size - 1)) {
    m_file.getChar(&last);
  }
  m_file.seek(size);
  return last == '\n' || m_file.putChar('\n') ? QString() : failure("cannot be written");
}

QString LineFile::write(const QString& line) {
  const QByteArray bytes = line.toUtf8() + '\n';
  const qint64 size = m_file.size();
  const qint64 begin = m_replaces ? 0 : m_file.pos();
  m_file.seek(begin);
  const QByteArray before = m_file.read(bytes.size());
  m_file.seek(begin);
  if (m_file.write(bytes) != bytes.size() || !m_file.resize(begin + bytes.size())) {
    const QString error = failure("could not be written to");
    m_file.seek(begin);
    m_file.write(before);
    m_file.resize(size);
    m_file.seek(begin);
    return error;
  }
  m_replaces = false;
  m_begins.push_back(begin);
  return QString();
}

QString LineFile::takeBackLast() {
  if (m_begins.empty()) {
    return QString();
  }
  const qint64 begin = m_begins.back();
  m_begins.pop_back();
  return m_file.resize(begin) && m_file.seek(begin) ? QString() : failure("could not be shortened");
}

QString LineFile::failure(const char* what) const {
  return QStringLiteral("The file '%1' %2: %3.").arg(m_file.fileName(), QLatin1String(what), m_file.errorString());
}

}  // namespace Corvex::Webhook
