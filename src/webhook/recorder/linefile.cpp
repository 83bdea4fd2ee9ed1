#include "webhook/recorder/linefile.h"

#include <utility>

namespace Corvex::Webhook {

QString LineFile::open(const QString& path, Mode mode) {
  m_begins.clear();
  m_file.setFileName(path);
  if (!m_file.open(QIODevice::ReadWrite)) {
    return failure("cannot be written");
  }
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
  return last == '\n' || (m_file.putChar('\n') && m_file.flush()) ? QString() : failure("cannot be written");
}

QString LineFile::write(const QString& line) {
  if (std::exchange(m_replaces, false) && !m_file.resize(0)) {
    return failure("could not be replaced");
  }
  const qint64 begin = m_file.pos();
  const QByteArray bytes = line.toUtf8() + '\n';
  if (m_file.write(bytes) != bytes.size() || !m_file.flush()) {
    return failure("could not be written to");
  }
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
