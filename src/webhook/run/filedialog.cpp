#include "webhook/run/filedialog.h"

#include "corvexhook/hook.h"
#include "shared/wait.h"
#include "wrappers/web/input/selectfiletoupload.h"

#include <QLocale>

namespace Corvex::Webhook {

namespace {

const int intervalMs = 50;
// A dialog that has just come into view does not take keys yet.
const int settlesMs = 750;
const int closesMs = 3000;

// A point within the button that accepts: it is the last one of the dialog's lowest row.
const int fromSide = 45;
const int fromBottom = 24;

bool isOpen() { return Hook::hook->nativeInterface()->topDialog().has_value(); }

bool closes() {
  return poll(closesMs, intervalMs, [] { return !isOpen(); });
}

/// Return cancels Chromium's own dialog, so that a page cannot have a user who holds that key choose a file.
bool isCancelledByReturn(const NativeDialog& dialog) {
  return dialog.program.contains(QLatin1String("chrom"), Qt::CaseInsensitive);
}

void acceptByButton(const NativeDialog& dialog) {
  NativeInterface* const native = Hook::hook->nativeInterface();
  // Where the dialog speaks English. Otherwise it does nothing.
  native->typeKeys(QStringLiteral("<Alt+o>"));
  if (!closes()) {
    const ScreenRectangle& area = dialog.area;
    const bool isMirrored = QLocale::system().textDirection() == Qt::RightToLeft;
    native->pointerClick(MouseButton::Left, {isMirrored ? area.x + fromSide : area.x + area.width - fromSide,
                                             area.y + area.height - fromBottom});
  }
}

}  // namespace

QString chooseFile(const QString& path, int timeoutMs) {
  NativeInterface* const native = Hook::hook->nativeInterface();
  QString error = WebWrapper::whyNotUpload(path);
  if (error.isEmpty()) {
    // Types nothing, and so tells whether anything can be typed.
    error = native->typeKeys(QString());
  }
  if (!error.isEmpty()) {
    return error;
  }
  if (!poll(timeoutMs, intervalMs, isOpen)) {
    return QStringLiteral(
               "No file dialog opened within %1 ms. Click what opens it with screenClick: browsers open none for "
               "the clicks of scripts.")
        .arg(timeoutMs);
  }
  gentleSleep(settlesMs);
  const std::optional<NativeDialog> dialog = native->topDialog();
  if (dialog && isCancelledByReturn(*dialog)) {
    WebWrapper::typeIntoFileDialog(path);
    acceptByButton(*dialog);
  } else {
    WebWrapper::automateFileDialog(path);
  }
  return closes() ? QString()
                  : QStringLiteral(
                        "The dialog on the screen did not take the file '%1' and is still open. See what it "
                        "shows, and answer it with screenType.")
                        .arg(path);
}

}  // namespace Corvex::Webhook
