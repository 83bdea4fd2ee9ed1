#pragma once

#include "corvexhook/geometry.h"
#include "shared/functioncallresult.h"
#include "shared/javascriptanswer.h"
#include "wrappers/web/export.h"

#include <QImage>

namespace Corvex::WebWrapper {

class HTMLComponent;
class HTML_Object;

/// The page's answer: "true", "false", or the message of an error that was raised there.
JavaScriptAnswer isVisible(const HTML_Object* object);

/// Whether the object can take input now: it is visible, and not disabled. No object at all counts as ready.
CORVEX_WEBWRAPPER_EXPORT FunctionCallResult<bool> isObjectReady(HTML_Object* object);

/// The part of the page's image at the rectangle. Where that is outside of the page the content is arbitrary.
CORVEX_WEBWRAPPER_EXPORT FunctionCallResult<QImage> grabObjectScreenshotInPage(HTMLComponent* component,
                                                                               const ScreenRectangle& rect);

/// The same of an image that is there already. A part that lies inside shares the memory of the whole.
FunctionCallResult<QImage> partOfPageImage(const FunctionCallResult<QImage>& page, const ScreenRectangle& rect);

}  // namespace Corvex::WebWrapper
