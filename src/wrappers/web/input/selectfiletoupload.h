#pragma once

#include "wrappers/web/export.h"

#include <QString>

namespace Corvex::WebWrapper {

class HTML_CustomText;
class HTML_Object;
class HTML_TextBase;

/// Puts the path of a file into a file field as a user does: clicks it with the native pointer, and types the path into
/// the dialog that opens. For connections that have no other way. Takes more than six seconds, in which events are
/// served. Answers an error text, empty on success; a dialog that did not open goes unnoticed, and the keys go to
/// whatever has the keyboard. The dialog takes a relative path for one in the folder that it shows.
CORVEX_WEBWRAPPER_EXPORT QString selectFileToUpload(HTML_TextBase* field, const QString& path);
CORVEX_WEBWRAPPER_EXPORT QString selectFileToUpload(HTML_CustomText* field, const QString& path);
QString internalSelectFileToUpload(HTML_Object* field, const QString& path);

/// Why there is nothing at a path that could be uploaded.
CORVEX_WEBWRAPPER_EXPORT QString whyNotUpload(const QString& path);

/// Types a path into the file dialog that has the keyboard, in place of what stands there, without accepting it.
CORVEX_WEBWRAPPER_EXPORT void typeIntoFileDialog(const QString& path);

/// Types a path into the file dialog that has the keyboard, in place of what stands there, and accepts it. Always
/// answers an empty text.
CORVEX_WEBWRAPPER_EXPORT QString automateFileDialog(const QString& path);

}  // namespace Corvex::WebWrapper
