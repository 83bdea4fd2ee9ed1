#include "wrappers/web/readiness/readiness.h"

#include "wrappers/web/elements/html_formelement.h"
#include "wrappers/web/page/htmlcomponent.h"

#include <QPainter>

namespace Corvex::WebWrapper {

JavaScriptAnswer isVisible(const HTML_Object* object) {
  return object->evaluateJS(
      QStringLiteral(" try { __corvex__isVisible(%1); } catch( e ) { false;e.message; }").arg(object->reference));
}

FunctionCallResult<bool> isObjectReady(HTML_Object* object) {
  using Result = FunctionCallResult<bool>;
  if (!object) {
    return Result::success(true);
  }
  const FunctionCallResult<QString> tagName = object->tagName();
  if (tagName.failed()) {
    return Result::failure(
        QStringLiteral("Cannot determine readyness, failed to obtain tagname: %1").arg(tagName.error));
  }
  if (qstrcmp(object->className(), "HTML_Document") == 0 || tagName.value == QLatin1String("HTML")) {
    return Result::success(true);
  }
  const JavaScriptAnswer visible = isVisible(object);
  if (visible.succeeded() && visible.text != QLatin1String("true")) {
    return Result::success(false);
  }
  const auto* formElement = dynamic_cast<const HTML_FormElement*>(object);
  if (!formElement) {
    return Result::success(true);
  }
  const Result disabled = formElement->disabled();
  return disabled.failed() ? disabled : Result::success(!disabled.value);
}

FunctionCallResult<QImage> grabObjectScreenshotInPage(HTMLComponent* component, const ScreenRectangle& rect) {
  const FunctionCallResult<QImage> page = component->grabPageScreenshot();
  if (page.failed()) {
    return page;
  }
  if (page.value.isNull()) {
    return FunctionCallResult<QImage>::failure(QStringLiteral("Invalid image obtained for html page screenshot."));
  }
  QImage image(rect.width, rect.height, QImage::Format_ARGB32_Premultiplied);
  if (!image.isNull()) {
    QPainter(&image).drawImage(QPoint(0, 0), page.value, QRect(rect.x, rect.y, rect.width, rect.height));
  }
  return FunctionCallResult<QImage>::success(image);
}

}  // namespace Corvex::WebWrapper
