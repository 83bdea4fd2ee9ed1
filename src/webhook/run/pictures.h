#pragma once

#include "shared/functioncallresult.h"

#include <QImage>
#include <QRect>
#include <QString>

namespace Corvex::WebWrapper {
class HTML_Object;
}

namespace Corvex::Webhook {

class Connection;

/// Where an object is, as far as it is shown, in pixels of a picture of its whole page.
FunctionCallResult<QRect> placeInPicture(const WebWrapper::HTML_Object& object);

/// The picture of an object. One that boxes or frames around it hide is scrolled into view first.
FunctionCallResult<QImage> pictureOf(const WebWrapper::HTML_Object& object);

/// Writes a picture of an object, or of the whole page of `current` where the object is null, to a file whose ending
/// tells the format. An object that boxes or frames around it hide is scrolled into view first. Answers why not, or an
/// empty text.
QString takeScreenshot(Connection& current, const WebWrapper::HTML_Object* object, const QString& file);

}  // namespace Corvex::Webhook
