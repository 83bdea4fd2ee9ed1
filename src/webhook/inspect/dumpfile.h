#pragma once

#include "webhook/inspect/pagedump.h"

#include <QByteArray>

namespace Corvex::Webhook {

/// How a dump is written down.
enum class DumpFormat { Html, Json, Xml };

/// By the ending of the file's name; HTML for any that is not known.
DumpFormat dumpFormatOf(const QString& file);

/// One page that shows the dump offline: nothing of it is taken from elsewhere, and no text of the dumped page is code
/// or markup there. Values of more than 500 characters are cut, and so is the picture's quality where it is large.
QByteArray dumpAsHtml(const PageDump& dump);
/// The page of `dumpAsHtml` with "%DATA%" where `dumpForViewer` gives what to show, as JSON; for files that show dumps
/// among other things.
QByteArray dumpViewer();
QByteArray dumpForViewer(const PageDump& dump);

/// A picture as HTML may hold it.
struct EncodedPicture {
  QString mimeType;
  QByteArray bytes;
};
/// Without any loss where that is not too large, and scaled down where browsers would not show it.
EncodedPicture encodePicture(const QImage& picture);

/// {url, title, documents: [object]}; an object is {context, class, name, qualifiedName, matches, bounds, properties,
/// children}, without a context where it is no document and without bounds where it is not shown.
QByteArray dumpAsJson(const PageDump& dump);
/// The same: elements "object" with attributes of those names, in them elements "property" with a "name".
QByteArray dumpAsXml(const PageDump& dump);

QByteArray dumpAs(DumpFormat format, const PageDump& dump);

/// In the format of the file's ending. A file that is there already is replaced once the new one is complete. Answers
/// why not, or an empty text.
QString saveDump(const PageDump& dump, const QString& path);

}  // namespace Corvex::Webhook
