#pragma once

#include <QImage>
#include <QString>

#include "shared/functioncallresult.h"

namespace Corvex::Scripting {

/// What came of a comparison of pictures, and the sentence that says so.
struct PictureVerdict {
  bool passed = false;
  QString text;
};

/// A PNG file with the picture that a script expects. Where the actual picture differs from that in "x.png", it is
/// written to "x.actual.png", and to "x.difference.png" one with the pixels that differ in red; both vanish again with
/// the next comparison that passes.
class ExpectedPicture {
public:
  /// A relative file starts at the folder; sentences call it as it was given.
  ExpectedPicture(const QString& folder, const QString& file);

  /// Why nothing can be compared with this file, whatever the picture; empty for a file that is not there yet.
  QString whyNotUsable() const;
  /// `share` is that of the pixels that may differ, from 0 to 1. The error says what could not be read or written.
  FunctionCallResult<PictureVerdict> compareWith(const QImage& actual, double share) const;

private:
  /// "x.actual.png" for "actual".
  static QString besideOf(const QString& file, const QString& part);
  QString write(const QImage& picture, const QString& part) const;
  FunctionCallResult<PictureVerdict> failed(const QImage& actual, const QImage& difference, const QString& why) const;

  QString m_file;
  QString m_path;
};

}  // namespace Corvex::Scripting
