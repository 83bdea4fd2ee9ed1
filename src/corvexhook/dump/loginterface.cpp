#include "corvexhook/dump/loginterface.h"

#include <QString>

#include <cstdarg>

namespace Corvex {

LogInterface::~LogInterface() = default;

void LogInterface::log(int level, const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  const QString text = QString::vasprintf(format, arguments);
  va_end(arguments);
  write(level, text.toUtf8());
}

}  // namespace Corvex
