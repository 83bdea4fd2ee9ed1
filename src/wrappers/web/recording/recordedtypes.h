#pragma once

#include "wrappers/web/export.h"

#include <QString>

namespace Corvex::WebWrapper {

/// What the type text of a recorded object says about it. Upper and lower case differ.
CORVEX_WEBWRAPPER_EXPORT bool isLink(const QString& type);
bool isTextFieldType(const QString& type);
CORVEX_WEBWRAPPER_EXPORT bool isButtonType(const QString& type);
bool isSelect(const QString& type);
bool isMenuItem(const QString& type);
bool isDateChooser(const QString& type);
/// The handle that opens and closes a node of a tree.
bool isTreeHandle(const QString& type);
/// An item of a view, which is named by its text or its place.
bool isItem(const QString& type);
/// What is never clicked by coordinates, whatever handlers it has.
bool isPressedAsAWhole(const QString& type);

}  // namespace Corvex::WebWrapper
