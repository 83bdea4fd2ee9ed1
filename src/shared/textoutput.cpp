#include "shared/textoutput.h"

#include <cerrno>

namespace Corvex {

std::error_code writeText(std::FILE* stream, const QString& text) {
  const QByteArray utf8 = text.toUtf8();
  const auto size = static_cast<std::size_t>(utf8.size());
  errno = 0;
  const bool isWritten = std::fwrite(utf8.constData(), 1, size, stream) == size && std::fflush(stream) == 0;
  return isWritten ? std::error_code() : std::error_code(errno, std::generic_category());
}

}  // namespace Corvex
