#pragma once

#include "corvexhook/export.h"

#include <QByteArray>

namespace Corvex {

/// Takes notes of what a dump could not do.
class CORVEXHOOK_EXPORT LogInterface {
public:
  LogInterface() = default;
  virtual ~LogInterface();

  /// `format` and what follows it are those of printf; texts are UTF-8. The higher the level, the less it matters.
  [[gnu::format(printf, 3, 4)]] void log(int level, const char* format, ...);

  LogInterface(const LogInterface&) = delete;
  LogInterface& operator=(const LogInterface&) = delete;

private:
  virtual void write(int level, const QByteArray& text) = 0;
};

}  // namespace Corvex
