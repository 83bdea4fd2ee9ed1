#include "webhook/inspect/dumpfile.h"

#include "shared/visibletext.h"

#include <QBuffer>
#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Corvex::Webhook {

namespace {

const int longestValue = 500;
// Large ones become JPEG files, which show a page well enough to point at it.
const int largestPngPicture = 1000000;
const qint64 mostPngPixels = 5000000;
const int jpegQuality = 70;
// No browser shows longer ones.
const int longestSide = 30000;

QByteArray partOfViewer(const char* name) {
  QFile file(QStringLiteral(":/webhook/viewer/") + QLatin1String(name));
  if (!file.open(QIODevice::ReadOnly)) {
    qFatal("The viewer's file '%s' is not built in.", name);
  }
  return file.readAll();
}

/// Empty where it cannot be written.
QByteArray encoded(const QImage& picture, const char* format, int quality) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  return buffer.open(QIODevice::WriteOnly) && picture.save(&buffer, format, quality) ? bytes : QByteArray();
}

/// The picture's address; empty without a picture.
QString asAddress(const QImage& picture) {
  const EncodedPicture encoded = encodePicture(picture);
  return encoded.bytes.isEmpty()
             ? QString()
             : QStringLiteral("data:%1;base64,").arg(encoded.mimeType) + QString::fromLatin1(encoded.bytes.toBase64());
}

QString cut(const QString& value) {
  if (value.size() <= longestValue) {
    return visibleText(value);
  }
  const bool splitsCharacter = value.at(longestValue - 1).isHighSurrogate();
  return visibleText(value.left(longestValue - (splitsCharacter ? 1 : 0)) + QChar(0x2026));
}

QJsonArray asRow(const DumpedObject& object) {
  const GlobalBounds& bounds = object.bounds;
  const bool isShown = bounds.width > 0 && bounds.height > 0;
  QJsonArray properties;
  for (const UIAbstraction::UIProperty& property : object.properties) {
    if (!property.value.isEmpty()) {
      properties.append(QJsonArray{property.name, cut(property.value)});
    }
  }
  QJsonArray row{object.depth,
                 object.className,
                 visibleText(object.name),
                 visibleText(object.qualifiedName),
                 object.matches,
                 isShown ? QJsonValue(QJsonArray{bounds.x, bounds.y, bounds.width, bounds.height}) : QJsonValue(),
                 properties};
  if (!object.context.isEmpty()) {
    row.append(visibleText(object.context));
  }
  return row;
}

/// As the content of a script element, where nothing else may end it.
QByteArray inScriptElement(QByteArray json) { return json.replace('<', "\\u003c"); }

}  // namespace

EncodedPicture encodePicture(const QImage& picture) {
  if (picture.width() > longestSide || picture.height() > longestSide) {
    return encodePicture(picture.scaled(longestSide, longestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation));
  }
  const bool mayBePng = qint64(picture.width()) * picture.height() <= mostPngPixels;
  const QByteArray png = mayBePng ? encoded(picture, "png", -1) : QByteArray();
  return !png.isEmpty() && png.size() <= largestPngPicture
             ? EncodedPicture{QStringLiteral("image/png"), png}
             : EncodedPicture{QStringLiteral("image/jpeg"), encoded(picture, "jpeg", jpegQuality)};
}

QByteArray dumpViewer() {
  return partOfViewer("dump.html")
      .replace("%STYLE%", partOfViewer("dump.css"))
      .replace("%SCRIPT%", partOfViewer("dump.js"));
}

QByteArray dumpForViewer(const PageDump& dump) {
  QJsonArray objects;
  for (const DumpedObject& object : dump.objects) {
    objects.append(asRow(object));
  }
  const QJsonObject data{{QStringLiteral("url"), visibleText(dump.url)},
                         {QStringLiteral("title"), visibleText(dump.title)},
                         {QStringLiteral("time"), QDateTime::currentDateTime().toString(Qt::ISODate)},
                         {QStringLiteral("problem"), visibleText(dump.error)},
                         {QStringLiteral("picture"), asAddress(dump.picture)},
                         {QStringLiteral("pictureWidth"), dump.picture.width()},
                         {QStringLiteral("objects"), objects}};
  return QJsonDocument(data).toJson(QJsonDocument::Compact);
}

// The data comes last: it may hold what reads as a place.
QByteArray dumpAsHtml(const PageDump& dump) {
  return dumpViewer().replace("%DATA%", inScriptElement(dumpForViewer(dump)));
}

}  // namespace Corvex::Webhook
