#include "webhook/run/nativefunctions.h"

#include "corvexhook/hook.h"
#include "shared/wait.h"
#include "webhook/run/browsercontrol.h"
#include "webhook/run/pageobject.h"
#include "wrappers/web/object/webobject.h"
#include "wrappers/web/page/htmlcomponent.h"

namespace Corvex::Webhook {

namespace {

const int longestPaintMs = 1000;
const int attemptIntervalMs = 20;

// Until a page has painted for the first time, Chromium gives it no press of the real pointer.
void awaitFirstPaint(WebWrapper::HTML_Object& object) {
  poll(longestPaintMs, attemptIntervalMs, [&object] {
    const QString count = QStringLiteral("String(window.top.performance.getEntriesByType('paint').length)");
    return object.evaluateJS(count).text != QLatin1String("0");
  });
}

QString clickMiddle(WebWrapper::HTML_Object& object, MouseButton::Value button) {
  awaitFirstPaint(object);
  const FunctionCallResult<ScreenRectangle> place = object.component->getScreenRect(&object, true);
  if (place.failed()) {
    return place.error;
  }
  if (place.value.width <= 0 || place.value.height <= 0) {
    return QStringLiteral("The object is not on the screen. Check that it is visible, and its window not minimized.");
  }
  const ScreenRectangle& rectangle = place.value;
  return Hook::hook->nativeInterface()->pointerClick(
      button, {rectangle.x + rectangle.width / 2, rectangle.y + rectangle.height / 2});
}

}  // namespace

QString screenClick(BrowserControl& control, const ObjectList& arguments) {
  QString error = control.whyNoScreen();
  if (error.isEmpty()) {
    error = control.whyNotAskPage();
  }
  if (!error.isEmpty()) {
    return error;
  }
  const FunctionCallResult<PageObject> object = pageObjectOf(arguments[0], "screenClick");
  const int button = arguments.size() > 1 && arguments[1] ? arguments[1]->toInt() : MouseButton::Default;
  return object.failed() ? object.error : clickMiddle(*object.value.native, static_cast<MouseButton::Value>(button));
}

QString screenType(BrowserControl& control, const QString& keys) {
  const QString error = control.whyNoScreen();
  return error.isEmpty() ? Hook::hook->nativeInterface()->typeKeys(keys) : error;
}

}  // namespace Corvex::Webhook
