#include "wrappers/web/object/queryrectanglewithfunction.h"

#include "wrappers/web/object/webobject.h"
#include "wrappers/web/page/htmlcomponent.h"
#include "wrappers/web/page/jsonanswer.h"

#include <QStringList>

namespace Corvex::WebWrapper {

namespace {

// A page that is being rebuilt gets a moment.
const int maxRounds = 10;

using RectResult = FunctionCallResult<QRect>;

int member(const Json::Value& value, const char* name) {
  return value.isObject() ? jsonInt(value.get(name, Json::Value())).value : 0;
}

}  // namespace

RectResult queryRectangleWithFunction(const QString& function, const HTML_Object* object) {
  if (!object->component) {
    return RectResult::failure(QStringLiteral("HTML object has no component, cannot obtain rectangle"));
  }
  const QString code = QStringLiteral("__corvex__getRectAsString(%1(%2) );").arg(function, object->reference);
  JavaScriptAnswer answer;
  for (int round = 0; round < maxRounds; ++round) {
    answer = object->evaluateJS(code);
    if (answer.succeeded() && !answer.text.isEmpty()) {
      break;
    }
  }
  if (!answer.succeeded()) {
    return RectResult::failure(
        QStringLiteral("Error while obtaining rectangle with function '%1': %2").arg(function, answer.text));
  }
  const QStringList parts = answer.text.split(QLatin1Char(','), Qt::SkipEmptyParts);
  if (parts.size() < 4) {
    return RectResult::failure(QStringLiteral("Rectangle string '%1' obtained has invalid format.").arg(answer.text));
  }
  return RectResult::success(QRect(parts[0].toInt(), parts[1].toInt(), parts[2].toInt(), parts[3].toInt()));
}

RectResult getScreenRect(const HTML_Object* object, bool makeVisible) {
  if (!object) {
    return RectResult::failure(QStringLiteral("No valid HTML object provided to getScreenRect function"));
  }
  if (makeVisible) {
    const QString error = object->scrollTo(true);
    if (!error.isEmpty()) {
      return RectResult::failure(
          QStringLiteral("Error while making object visible to fetch screen rectangle: %1").arg(error));
    }
  }
  return queryRectangleWithFunction(QStringLiteral("__corvex__getScreenRectAsObject"), object);
}

FunctionCallResult<ScreenRectangle> sizeForm(const RectResult& rectangle) {
  if (rectangle.failed()) {
    return {ScreenRectangle{-1, -1, -1, -1}, rectangle.error};
  }
  const QRect& r = rectangle.value;
  return FunctionCallResult<ScreenRectangle>::success({r.left(), r.top(), r.width(), r.height()});
}

// Stands here, since only page objects have rectangles.
FunctionCallResult<ScreenRectangle> HTMLComponent::getScreenRect(const HTML_Object* object, bool scrollIntoView) {
  return sizeForm(WebWrapper::getScreenRect(object, scrollIntoView));
}

ScreenRectangle screenRectangleFromJson(const Json::Value& value) {
  return {member(value, "x"), member(value, "y"), member(value, "width"), member(value, "height")};
}

}  // namespace Corvex::WebWrapper
