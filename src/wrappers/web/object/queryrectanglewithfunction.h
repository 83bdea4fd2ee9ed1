#pragma once

#include "corvexhook/geometry.h"
#include "shared/functioncallresult.h"

#include <QRect>
#include <QString>

#include <json/value.h>

namespace Corvex::WebWrapper {

class HTML_Object;

/// Asks the page for the rectangle that a page function gives for the object, up to ten times in a row. The page's
/// invalid rectangle is a valid answer, of width and height -1.
FunctionCallResult<QRect> queryRectangleWithFunction(const QString& function, const HTML_Object* object);

/// Where the object is on the screen, after scrolling it into view with `makeVisible`.
FunctionCallResult<QRect> getScreenRect(const HTML_Object* object, bool makeVisible);

/// The same rectangle as position and size; all -1 with an error.
FunctionCallResult<ScreenRectangle> sizeForm(const FunctionCallResult<QRect>& rectangle);

/// From the members x, y, width and height, fractions cut. Members that are no numbers count as 0.
ScreenRectangle screenRectangleFromJson(const Json::Value& value);

}  // namespace Corvex::WebWrapper
