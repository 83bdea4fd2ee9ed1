#include "wrappers/web/input/selectfiletoupload.h"

#include "corvexhook/hook.h"
#include "shared/wait.h"
#include "wrappers/web/elements/html_text.h"
#include "wrappers/web/object/queryrectanglewithfunction.h"
#include "wrappers/web/widgets/widgetclasses.h"

#include <QDir>
#include <QFileInfo>

namespace Corvex::WebWrapper {

namespace {

const int dialogOpensMs = 3000;
const int betweenStepsMs = 750;
const int dialogClosesMs = 1000;

// Browsers put the button that opens the dialog near the right end of the field.
const int fromRightEnd = 20;
const int fromTop = 5;

void type(const QString& keys, int pauseMs) {
  Hook::hook->nativeInterface()->typeKeys(keys);
  gentleSleep(pauseMs);
}

}  // namespace

QString selectFileToUpload(HTML_TextBase* field, const QString& path) {
  return internalSelectFileToUpload(field, path);
}

QString selectFileToUpload(HTML_CustomText* field, const QString& path) {
  return internalSelectFileToUpload(field, path);
}

QString whyNotUpload(const QString& path) {
  const QFileInfo file(path);
  if (!file.exists()) {
    return QStringLiteral("Error automating file upload field, file at '%1' does not exist.").arg(path);
  }
  if (!file.isFile()) {
    return QStringLiteral("Error automating file upload field, file at '%1' is not a file.").arg(path);
  }
  return file.isReadable()
             ? QString()
             : QStringLiteral("Error automating file upload field, file at '%1' is not readable.").arg(path);
}

QString internalSelectFileToUpload(HTML_Object* field, const QString& path) {
  const QString whyNot = whyNotUpload(path);
  if (!whyNot.isEmpty()) {
    return whyNot;
  }
  const FunctionCallResult<QRect> rect = getScreenRect(field, true);
  if (rect.failed()) {
    return QStringLiteral("Cannot click on file upload field, obtaining screen rect failed: %1").arg(rect.error);
  }
  const int width = rect.value.width();
  const int height = rect.value.height();
  if (width == 0 || height == 0) {
    return QStringLiteral(
               "Error automating file upload field, the elements width (%1) or height (%2) is 0. The nececssary click "
               "will likely end up in the wrong place.If your website uses a button to open the file dialog, please "
               "consider using mouseClick and chooseFile instead.")
        .arg(width)
        .arg(height);
  }
  const NativeInterface::ScreenPoint point{rect.value.left() + width - fromRightEnd, rect.value.top() + fromTop};
  NativeInterface* const native = Hook::hook->nativeInterface();
  native->pointerMove(point);
  const QString error = native->pointerClick(MouseButton::Left, point);
  if (!error.isEmpty()) {
    static const QString clickFailed = QStringLiteral("Click on upload field to open the file dialog failed: %1");
    return clickFailed.arg(error);
  }
  gentleSleep(dialogOpensMs);
  return automateFileDialog(path);
}

void typeIntoFileDialog(const QString& path) {
  type(QStringLiteral("<Home>"), betweenStepsMs);
  type(QStringLiteral("<Shift+End>"), betweenStepsMs);
  type(NativeInterface::keysForText(QDir::toNativeSeparators(path)), betweenStepsMs);
}

QString automateFileDialog(const QString& path) {
  typeIntoFileDialog(path);
  type(QStringLiteral("<Return>"), dialogClosesMs);
  return QString();
}

}  // namespace Corvex::WebWrapper
