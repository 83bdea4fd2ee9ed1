#pragma once

#include <QFile>

#include <unistd.h>

namespace TestSupport {

/// The resident memory of this process; 0 where the system does not tell.
inline qint64 residentBytes() {
  QFile file(QStringLiteral("/proc/self/statm"));
  const QList<QByteArray> numbers = file.open(QIODevice::ReadOnly) ? file.readAll().split(' ') : QList<QByteArray>();
  return numbers.value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

/// AddressSanitizer holds freed memory back for a while, so that the resident memory tells nothing.
#ifdef __SANITIZE_ADDRESS__
constexpr bool freedMemoryStays = true;
#else
constexpr bool freedMemoryStays = false;
#endif

}  // namespace TestSupport
