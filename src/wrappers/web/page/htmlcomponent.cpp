#include "wrappers/web/page/htmlcomponent.h"

namespace Corvex::WebWrapper {

HTMLComponent::~HTMLComponent() = default;

JavaScriptAnswer HTMLComponent::evaluateInAnyDocument(const QString& code, unsigned int timeoutMs) {
  return evaluateJS(code, timeoutMs);
}

bool HTMLComponent::supportsPageScreenshot() { return false; }

FunctionCallResult<QImage> HTMLComponent::grabPageScreenshot() { return FunctionCallResult<QImage>::success(QImage()); }

FunctionCallResult<double> HTMLComponent::zoomFactor() { return FunctionCallResult<double>::success(1.0); }

}  // namespace Corvex::WebWrapper
