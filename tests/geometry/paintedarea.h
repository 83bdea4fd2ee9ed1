#pragma once

#include <QImage>
#include <QRect>

namespace TestSupport {

/// Where an image has exactly one colour.
struct PaintedArea {
  QRect bounds;  ///< Around all pixels of the colour.
  int pixels = 0;

  bool isEmpty() const { return pixels == 0; }
  /// Whether every pixel within the bounds has the colour.
  bool isFilled() const { return pixels == bounds.width() * bounds.height(); }
};

inline PaintedArea paintedArea(const QImage& image, QRgb colour) {
  int left = image.width(), top = image.height(), right = -1, bottom = -1, pixels = 0;
  for (int y = 0; y < image.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      if ((line[x] | 0xff000000) == colour) {
        ++pixels;
        left = qMin(left, x);
        top = qMin(top, y);
        right = qMax(right, x);
        bottom = y;
      }
    }
  }
  return {QRect(QPoint(left, top), QPoint(right, bottom)), pixels};
}

}  // namespace TestSupport
