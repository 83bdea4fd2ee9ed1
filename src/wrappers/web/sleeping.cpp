#include "wrappers/web/sleeping.h"

#include <QEventLoop>
#include <QTimer>

namespace Corvex::WebWrapper {

void gentleSleep(int milliseconds) {
  QEventLoop loop;
  QTimer timer;
  timer.setSingleShot(true);
  timer.setTimerType(Qt::PreciseTimer);
  QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
  timer.start(milliseconds);
  loop.exec();
}

}  // namespace Corvex::WebWrapper
