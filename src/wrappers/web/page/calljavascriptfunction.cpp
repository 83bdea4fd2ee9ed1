#include "wrappers/web/page/calljavascriptfunction.h"

#include "wrappers/web/page/exceptiontext.h"
#include "wrappers/web/page/htmlcomponent.h"
#include "wrappers/web/page/jsonanswer.h"

namespace Corvex::WebWrapper {

namespace {

using JsonResult = FunctionCallResult<Json::Value>;

const ExceptionForm callForm = {jsonText, " at ", ": ", ".", " Stacktrace: "};

QString displayForm(const QString& expression) {
  return expression.size() < 100 ? expression : expression.left(50) + QLatin1String("...") + expression.right(50);
}

QString envelope(const QString& expression) {
  return QLatin1String("(function() {\n  try {\n    return JSON.stringify({'result': ") + expression +
         QLatin1String("});\n") + QLatin1String(catchAsError) + QLatin1String("\n  }\n}());");
}

JsonResult valueOf(const JavaScriptAnswer& answer, const QString& expression) {
  if (!answer.succeeded()) {
    return JsonResult::failure(answer.text);
  }
  const QString display = displayForm(expression);
  const JsonResult root = parseJson(answer.text);
  if (root.failed()) {
    return JsonResult::failure(
        QStringLiteral("Calling %1 failed to parse JSON return value '%2': %3").arg(display, answer.text, root.error));
  }
  if (!root.value.isObject()) {
    return JsonResult::failure(
        QStringLiteral("Calling %1 JSON return value is not an object: %2").arg(display, answer.text));
  }
  if (!root.value.isMember("error")) {
    return JsonResult::success(root.value.get("result", Json::Value()));
  }
  const Json::Value e = root.value.get("error", Json::Value());
  const QString detail = e.isObject() ? exceptionText(e, callForm) : jsonText(e);
  return JsonResult::failure(QStringLiteral("Calling %1: Error evaluating JavaScript: %3").arg(display, detail));
}

}  // namespace

JsonResult callJavaScriptFunction(HTMLComponent* component, const QString& expression, unsigned int timeoutMs) {
  return valueOf(component->evaluateJS(envelope(expression), timeoutMs), expression);
}

JsonResult callInAnyDocument(HTMLComponent* component, const QString& expression, unsigned int timeoutMs) {
  return valueOf(component->evaluateInAnyDocument(envelope(expression), timeoutMs), expression);
}

}  // namespace Corvex::WebWrapper
