#pragma once

#include <QByteArray>
#include <QString>

#include "shared/export.h"

namespace Corvex {

/// Writes a file whole: one that is there already is replaced once the new one is complete, and stays as it is
/// otherwise. What is no regular file, such as a pipe, is written to. Answers the reason why not alone, without a full
/// stop: "permission denied"; or an empty text.
CORVEX_EXPORT QString writeWholeFile(const QString& path, const QByteArray& bytes);

/// Why a file could surely not be written, before anything is done for it: a reason as above, or an empty text.
CORVEX_EXPORT QString whyNotWritable(const QString& path);

}  // namespace Corvex
