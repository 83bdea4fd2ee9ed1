#include "webhook/run/pictures.h"

#include "webhook/pages/connection.h"
#include "webhook/protocol/inpagetext.h"
#include "wrappers/web/object/webobject.h"
#include "wrappers/web/readiness/readiness.h"

#include <QDir>
#include <QFileInfo>
#include <QImageWriter>

#include <cmath>

namespace Corvex::Webhook {

namespace {

using WebWrapper::HTML_Object;

const double mostPixels = 2e8;

/// In pixels of the picture.
struct Place {
  ScreenRectangle rectangle;
  bool isWhole = false;
};

FunctionCallResult<Place> placeOf(const HTML_Object& object) {
  const QString call = QStringLiteral("place(function () { return %1; });").arg(object.reference);
  const JavaScriptAnswer answer = object.component->evaluateJS(inPageText("picturerect.js").arg(call), 0);
  const QStringList fields = answer.text.split(QLatin1Char(','));
  if (!answer.succeeded() || fields.size() != 6) {
    return FunctionCallResult<Place>::failure(
        QStringLiteral("The page did not tell where the object is: %1").arg(answer.text));
  }
  double numbers[6];
  for (int i = 0; i < 6; ++i) {
    numbers[i] = fields.at(i).toDouble();
    if (!(std::abs(numbers[i]) < 1e6)) {
      return FunctionCallResult<Place>::failure(QStringLiteral("The page did not tell where the object is."));
    }
  }
  const double ratio = numbers[4];
  const auto pixel = [ratio](double position) { return static_cast<int>(std::lround(position * ratio)); };
  const int left = pixel(numbers[0]);
  const int top = pixel(numbers[1]);
  const ScreenRectangle rectangle = {left, top, pixel(numbers[0] + numbers[2]) - left,
                                     pixel(numbers[1] + numbers[3]) - top};
  return FunctionCallResult<Place>::success({rectangle, numbers[5] == 1});
}

QString whyNotWritable(const QString& file) {
  const QFileInfo info(file);
  const QByteArray format = info.suffix().toLower().toLatin1();
  if (!QImageWriter::supportedImageFormats().contains(format)) {
    return QStringLiteral("The name of a picture ends in .png, .jpg or .bmp, unlike '%1'.").arg(file);
  }
  if (info.isDir()) {
    return QStringLiteral("The picture '%1' cannot be written: it is a folder.").arg(file);
  }
  return info.dir().exists()
             ? QString()
             : QStringLiteral("The picture '%1' cannot be written: there is no folder '%2'.").arg(file, info.path());
}

}  // namespace

FunctionCallResult<QRect> placeInPicture(const HTML_Object& object) {
  const FunctionCallResult<Place> place = placeOf(object);
  const ScreenRectangle& shown = place.value.rectangle;
  return {{shown.x, shown.y, shown.width, shown.height}, place.error};
}

FunctionCallResult<QImage> pictureOf(const HTML_Object& object) {
  FunctionCallResult<Place> place = placeOf(object);
  if (!place.failed() && !place.value.isWhole) {
    const QString error = object.scrollTo(true);
    place = error.isEmpty() ? placeOf(object) : FunctionCallResult<Place>::failure(error);
  }
  if (place.failed()) {
    return FunctionCallResult<QImage>::failure(place.error);
  }
  const ScreenRectangle& rectangle = place.value.rectangle;
  if (rectangle.width <= 0 || rectangle.height <= 0) {
    return FunctionCallResult<QImage>::failure(
        QStringLiteral("There is no picture of the object: nothing of it is shown. Check that it is visible."));
  }
  if (static_cast<double>(rectangle.width) * rectangle.height > mostPixels) {
    return FunctionCallResult<QImage>::failure(
        QStringLiteral("There is no picture of the object: it would have more than 200 million pixels."));
  }
  return WebWrapper::grabObjectScreenshotInPage(object.component, rectangle);
}

QString takeScreenshot(Connection& current, const HTML_Object* object, const QString& file) {
  const QString why = whyNotWritable(file);
  if (!why.isEmpty()) {
    return why;
  }
  const FunctionCallResult<QImage> picture = object ? pictureOf(*object) : current.grabPageScreenshot();
  if (picture.failed()) {
    return picture.error;
  }
  QImageWriter writer(file);
  return writer.write(picture.value)
             ? QString()
             : QStringLiteral("The picture '%1' cannot be written: %2.").arg(file, writer.errorString());
}

}  // namespace Corvex::Webhook
