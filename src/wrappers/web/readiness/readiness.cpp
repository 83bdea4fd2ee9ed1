#include "wrappers/web/readiness/readiness.h"

#include "wrappers/web/elements/html_formelement.h"
#include "wrappers/web/page/htmlcomponent.h"

#include <QPainter>
#include <QStringList>

#include <optional>

namespace Corvex::WebWrapper {

JavaScriptAnswer isVisible(const HTML_Object* object) {
  return object->evaluateJS(
      QStringLiteral(" try { __corvex__isVisible(%1); } catch( e ) { false;e.message; }").arg(object->reference));
}

namespace {

/// Reads what the page says of all that decides. Nothing for answers that need a sentence of their own.
std::optional<bool> readyAtOnce(const HTML_Object& object, const QString& readiness) {
  const QStringList words = readiness.split(QLatin1Char(' '));
  if (words.size() != 4 || words[0] != QLatin1String("ready") || words[1].isEmpty()) {
    return std::nullopt;
  }
  const bool isVisible = words[2] == QLatin1String("true");
  if (!isVisible && words[2] != QLatin1String("false")) {
    return std::nullopt;
  }
  const bool isDisabled = dynamic_cast<const HTML_FormElement*>(&object) && words[3] == QLatin1String("true");
  return words[1] == QLatin1String("HTML") || (isVisible && !isDisabled);
}

/// What the page said when it gave the object, or says now; empty where it fails.
QString readinessOf(HTML_Object& object) {
  const QString readiness = object.takeReadiness();
  if (!readiness.isEmpty()) {
    return readiness;
  }
  const JavaScriptAnswer answer = object.evaluateJS(QStringLiteral("__corvex__readiness( %1 );").arg(object.reference));
  return answer.succeeded() ? answer.text : QString();
}

}  // namespace

FunctionCallResult<bool> isObjectReady(HTML_Object* object) {
  using Result = FunctionCallResult<bool>;
  if (!object) {
    return Result::success(true);
  }
  const bool isDocument = qstrcmp(object->className(), "HTML_Document") == 0;
  const std::optional<bool> ready = isDocument ? std::nullopt : readyAtOnce(*object, readinessOf(*object));
  if (ready) {
    return Result::success(*ready);
  }
  const FunctionCallResult<QString> tagName = object->tagName();
  if (tagName.failed()) {
    return Result::failure(
        QStringLiteral("Cannot determine readyness, failed to obtain tagname: %1").arg(tagName.error));
  }
  if (isDocument || tagName.value == QLatin1String("HTML")) {
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

FunctionCallResult<QImage> partOfPageImage(const FunctionCallResult<QImage>& page, const ScreenRectangle& rect) {
  if (page.failed()) {
    return page;
  }
  if (page.value.isNull()) {
    return FunctionCallResult<QImage>::failure(QStringLiteral("Invalid image obtained for html page screenshot."));
  }
  if (page.value.depth() == 32 && rect.width > 0 && rect.height > 0 &&
      page.value.rect().contains(QRect(rect.x, rect.y, rect.width, rect.height))) {
    const uchar* const corner = page.value.constScanLine(rect.y) + 4 * static_cast<std::ptrdiff_t>(rect.x);
    // The part keeps the whole.
    return FunctionCallResult<QImage>::success(QImage(
        corner, rect.width, rect.height, page.value.bytesPerLine(), page.value.format(),
        [](void* whole) { delete static_cast<QImage*>(whole); }, new QImage(page.value)));
  }
  QImage image(rect.width, rect.height, QImage::Format_ARGB32_Premultiplied);
  if (!image.isNull()) {
    QPainter(&image).drawImage(QPoint(0, 0), page.value, QRect(rect.x, rect.y, rect.width, rect.height));
  }
  return FunctionCallResult<QImage>::success(image);
}

FunctionCallResult<QImage> grabObjectScreenshotInPage(HTMLComponent* component, const ScreenRectangle& rect) {
  return partOfPageImage(component->grabPageScreenshot(), rect);
}

}  // namespace Corvex::WebWrapper
