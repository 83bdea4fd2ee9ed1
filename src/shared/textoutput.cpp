#include "shared/textoutput.h"

#include <cerrno>
#include <cstring>

namespace Corvex {

QString writeText(std::FILE* stream, const QString& text) {
  const QByteArray utf8 = text.toUtf8();
  const auto size = static_cast<std::size_t>(utf8.size());
  errno = 0;
  const bool isWritten = std::fwrite(utf8.constData(), 1, size, stream) == size && std::fflush(stream) == 0;
  return isWritten ? QString() : QString::fromLocal8Bit(std::strerror(errno));
}

}  // namespace Corvex
