#include "webhook/cli/pickcommand.h"

#include "shared/visibletext.h"
#include "shared/wait.h"
#include "webhook/cli/commandline.h"
#include "webhook/cli/output.h"
#include "webhook/cli/pagecommand.h"
#include "webhook/inspect/picking.h"
#include "webhook/process/cleanup.h"
#include "webhook/recorder/eventrecorder.h"
#include "webhook/recorder/recordingfiles.h"

#include <atomic>
#include <limits>

namespace Corvex::Webhook {

namespace {

const QCommandLineOption keepOption(QStringLiteral("keep"),
                                    QStringLiteral("Go on until the window is closed or Ctrl+C is pressed."));

const char* const description =
    "Opens a page in a browser and tells of the object that you click on: its name, how many objects the name fits,\n"
    "its class, its DOM path and, where it is not the only one, the window or frame that it is in. The object under\n"
    "the pointer is shown with its name. The page gets no press meanwhile.\n"
    "\n"
    "Exit code: 0 picked, or ended with --keep, 1 nothing was picked or the page could not be loaded, 2 wrong usage,\n"
    "3 the browser could not be started or was lost.";

// How soon pages that changed let objects be picked.
const int attentionMs = 50;

QString row(const char* title, const QString& text) {
  return text.isEmpty()
             ? QString()
             : QStringLiteral("    %1 %2\n").arg(QLatin1String(title), -9).arg(visibleText(text, LineBreaks::Shown));
}

QString report(const PickedObject& picked) {
  return visibleText(picked.name, LineBreaks::Shown) + u'\n' +
         (picked.domPath.isEmpty() ? row("gone", QStringLiteral("The object went before it could be looked at."))
                                   : row("matches", QString::number(picked.matches))) +
         row("class", picked.className) + row("DOM path", picked.domPath) + row("context", picked.context);
}

/// Answers the exit code.
int pick(PageCommand& command, EventRecorder& logger, const std::atomic<bool>& isOver) {
  BrowserWindows& windows = *command.browser().windows();
  const bool keeps = command.parser().isSet(keepOption);
  Picking picking(windows);
  const QObject watcher;
  QObject::connect(command.browser().dispatcher(), &MessageDispatcher::objectHovered, &watcher,
                   [&picking](const QString& info) { picking.noteHovered(info); });
  int exitCode = keeps ? ExitCode::Success : ExitCode::Failed;
  poll(std::numeric_limits<int>::max(), attentionMs, [&] {
    picking.serve();
    // A press is worked on at once: nothing comes before it.
    logger.finish();
    bool isDone = isOver || windows.connections().isEmpty();
    while (!isDone && picking.hasPicked()) {
      exitCode = printOut(report(picking.take()), ExitCode::Success);
      isDone = !keeps || exitCode != ExitCode::Success;
    }
    return isDone;
  });
  const QString lost = command.browser().whyLost();
  return exitCode != ExitCode::Success && !lost.isEmpty() ? command.fail(lost) : exitCode;
}

}  // namespace

int pickCommand(const QStringList& arguments) {
  // Only what is picked is wanted of it: nothing is recorded.
  RecordingFiles files([](const QString&) {}, [](const QString&) {});
  RecordedCalls calls(files);
  EventRecorder logger(calls);
  PageCommand command(QString::fromLatin1(description));
  command.parser().addOption(keepOption);
  command.showWindow();
  command.prepareWith([&logger](BrowserControl& browser) { browser.pickWith(&logger); });
  if (const std::optional<int> exitCode = command.parse(arguments)) {
    return *exitCode;
  }
  std::atomic<bool> isOver{false};
  if (const std::optional<int> exitCode = command.open()) {
    return *exitCode;
  }
  Cleanup::setStopFlag(&isOver);
  const int exitCode = pick(command, logger, isOver);
  Cleanup::setStopFlag(nullptr);
  return exitCode;
}

}  // namespace Corvex::Webhook
