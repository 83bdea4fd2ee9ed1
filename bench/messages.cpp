#include "hookedpage.h"
#include "shared/wait.h"
#include "subjects.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryFile>

namespace CorvexBench {

using namespace Corvex;

namespace {

const int messageCount = 2000;
const int giveUpMs = 60000;

}  // namespace

bool measureMessages(const SessionOptions& options, Report& report) {
  HookedPage hooked;
  QString error = hooked.start(options);
  QTemporaryFile page(QDir::tempPath() + QStringLiteral("/corvexbench-XXXXXX.html"));
  page.open();
  error = error.isEmpty() ? hooked.connection().navigate(QStringLiteral("file://") + page.fileName()) : error;
  if (!error.isEmpty()) {
    return fail(error);
  }
  int received = 0;
  QObject::connect(&hooked.endpoint(), &Webhook::MessageEndpoint::messageReceived,
                   [&received](const Webhook::PageMessage& message) {
                     received += message.kind() == Webhook::MessageKind::LogEvent ? 1 : 0;
                   });
  QElapsedTimer timer;
  timer.start();
  hooked.connection().evaluateJS(
      QStringLiteral(
          "(function send(left) { if (left) { __corvex__sendLogEventData(null, 'event=bench&left=' + left, true)"
          ".addEventListener('loadend', function () { send(left - 1); }); } }(%1))")
          .arg(messageCount),
      0);
  while (received < messageCount && timer.elapsed() < giveUpMs) {
    gentleSleep(1);
  }
  report.section(QStringLiteral("Messages of one page, 2,000 one behind the other"));
  report.addNumber(QStringLiteral("taken"), received);
  report.addNumber(QStringLiteral("taken per second"), received * 1000.0 / static_cast<double>(timer.elapsed()));
  const QMap<QString, quint64> refused = hooked.endpoint().refused();
  for (auto row = refused.begin(); row != refused.end(); ++row) {
    report.addNumber(QStringLiteral("refused: ") + row.key(), static_cast<double>(row.value()));
  }
  return received == messageCount || fail(QStringLiteral("messages were lost"));
}

}  // namespace CorvexBench
