#include "wrappers/web/htmlcomponent.h"

#include "wrappers/web/queryrectanglewithfunction.h"

namespace Corvex::WebWrapper {

HTMLComponent::~HTMLComponent() = default;

FunctionCallResult<ScreenRectangle> HTMLComponent::getScreenRect(const HTML_Object* object, bool scrollIntoView) {
  return sizeForm(WebWrapper::getScreenRect(object, scrollIntoView));
}

bool HTMLComponent::supportsPageScreenshot() { return false; }

FunctionCallResult<QImage> HTMLComponent::grabPageScreenshot() { return FunctionCallResult<QImage>::success(QImage()); }

FunctionCallResult<double> HTMLComponent::zoomFactor() { return FunctionCallResult<double>::success(1.0); }

}  // namespace Corvex::WebWrapper
