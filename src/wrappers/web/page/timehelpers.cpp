#include "wrappers/web/page/timehelpers.h"

#include <sys/time.h>

namespace Corvex::WebWrapper {

unsigned long long now() {
  timeval time = {};
  gettimeofday(&time, nullptr);
  return static_cast<unsigned long long>(time.tv_sec) * 1000 + static_cast<unsigned long long>(time.tv_usec) / 1000;
}

bool msecsToDateTime(unsigned long long msecs, QDateTime* out) {
  if (msecs == 0) {
    return false;
  }
  *out = QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(msecs));
  return out->isValid();
}

}  // namespace Corvex::WebWrapper
