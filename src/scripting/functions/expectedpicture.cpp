#include "scripting/functions/expectedpicture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>
#include <cstdlib>

namespace Corvex::Scripting {

namespace {

using Result = FunctionCallResult<PictureVerdict>;

const double mostPixels = 2e8;

// In steps of 255, for each channel: what rounding and the smoothing of edges make of one and the same picture.
const int tolerance = 4;

const QRgb red = qRgb(255, 0, 0);

bool areAlike(QRgb a, QRgb b) {
  return std::abs(qRed(a) - qRed(b)) <= tolerance && std::abs(qGreen(a) - qGreen(b)) <= tolerance &&
         std::abs(qBlue(a) - qBlue(b)) <= tolerance && std::abs(qAlpha(a) - qAlpha(b)) <= tolerance;
}

/// A pixel that does not differ: still to be made out, but far from red.
QRgb faded(QRgb pixel) {
  const int grey = 192 + qGray(pixel) / 4;
  return qRgb(grey, grey, grey);
}

struct Comparison {
  qint64 differing = 0;
  QImage difference;
};

Comparison compare(const QImage& actual, const QImage& expected) {
  const QSize size = actual.size().expandedTo(expected.size());
  Comparison result{0, QImage(size, QImage::Format_RGB32)};
  for (int y = 0; y < size.height(); ++y) {
    auto* const line = reinterpret_cast<QRgb*>(result.difference.scanLine(y));
    for (int x = 0; x < size.width(); ++x) {
      const bool alike =
          actual.valid(x, y) && expected.valid(x, y) && areAlike(actual.pixel(x, y), expected.pixel(x, y));
      line[x] = alike ? faded(actual.pixel(x, y)) : red;
      result.differing += alike ? 0 : 1;
    }
  }
  return result;
}

QString sizeText(const QSize& size) { return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height()); }

}  // namespace

ExpectedPicture::ExpectedPicture(const QString& folder, const QString& file)
    : m_file(file), m_path(QDir::cleanPath(QDir(folder).absoluteFilePath(file))) {}

QString ExpectedPicture::whyNotUsable() const {
  const QFileInfo info(m_path);
  if (info.suffix().toLower() != QLatin1String("png")) {
    return QStringLiteral("The name of an expected picture ends in .png, unlike '%1'.").arg(m_file);
  }
  if (!info.dir().exists()) {
    return QStringLiteral("There is no folder '%1' for the expected picture '%2'.").arg(info.path(), m_file);
  }
  if (info.exists() && !info.isFile()) {
    return QStringLiteral("The expected picture '%1' is no file.").arg(m_file);
  }
  return QString();
}

Result ExpectedPicture::compareWith(const QImage& actual, double share) const {
  if (!QFile::exists(m_path)) {
    const QString actualFile = besideOf(m_file, QStringLiteral("actual"));
    return failed(actual, QImage(),
                  QStringLiteral("there is no picture '%1' yet. Look at '%2': if it shows what is expected, rename it "
                                 "to '%1'")
                      .arg(m_file, actualFile));
  }
  QImageReader reader(m_path, "png");
  if (!reader.canRead()) {
    return Result::failure(QStringLiteral("The expected picture '%1' is no PNG file.").arg(m_file));
  }
  const QSize size = reader.size();
  if (static_cast<double>(size.width()) * size.height() > mostPixels) {
    return Result::failure(QStringLiteral("The expected picture '%1' has more than 200 million pixels.").arg(m_file));
  }
  const QImage expected = reader.read();
  if (expected.isNull()) {
    return Result::failure(
        QStringLiteral("The expected picture '%1' cannot be read: %2").arg(m_file, reader.errorString()));
  }
  const Comparison comparison =
      compare(actual.convertToFormat(QImage::Format_ARGB32), expected.convertToFormat(QImage::Format_ARGB32));
  if (actual.size() != expected.size()) {
    return failed(actual, comparison.difference,
                  QStringLiteral("the picture has %1 pixels, but '%2' has %3")
                      .arg(sizeText(actual.size()), m_file, sizeText(expected.size())));
  }
  const double pixels = static_cast<double>(actual.width()) * actual.height();
  if (static_cast<double>(comparison.differing) > share * pixels) {
    return failed(actual, comparison.difference,
                  QStringLiteral("the picture differs from '%1' in %2 of %3 pixels")
                      .arg(m_file, QString::number(comparison.differing), QString::number(pixels, 'f', 0)));
  }
  QFile::remove(besideOf(m_path, QStringLiteral("actual")));
  QFile::remove(besideOf(m_path, QStringLiteral("difference")));
  return Result::success({true, QStringLiteral("the picture looks like '%1'").arg(m_file)});
}

Result ExpectedPicture::failed(const QImage& actual, const QImage& difference, const QString& why) const {
  QString error = write(actual, QStringLiteral("actual"));
  QString text = why;
  if (error.isEmpty() && !difference.isNull()) {
    error = write(difference, QStringLiteral("difference"));
    text += QStringLiteral("; see '%1' and '%2'")
                .arg(besideOf(m_file, QStringLiteral("actual")), besideOf(m_file, QStringLiteral("difference")));
  }
  return error.isEmpty() ? Result::success({false, text}) : Result::failure(error);
}

QString ExpectedPicture::besideOf(const QString& file, const QString& part) {
  return QStringLiteral("%1.%2.png").arg(file.left(file.size() - 4), part);
}

QString ExpectedPicture::write(const QImage& picture, const QString& part) const {
  return picture.save(besideOf(m_path, part), "PNG")
             ? QString()
             : QStringLiteral(
                   "The picture '%1' cannot be written. Check the folder's permissions and the space on "
                   "the disk.")
                   .arg(besideOf(m_file, part));
}

}  // namespace Corvex::Scripting
