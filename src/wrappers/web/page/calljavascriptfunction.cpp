#include "wrappers/web/page/calljavascriptfunction.h"

#include "wrappers/web/page/htmlcomponent.h"
#include "wrappers/web/page/jsonanswer.h"

namespace Corvex::WebWrapper {

namespace {

using JsonResult = FunctionCallResult<Json::Value>;

const char* const callTemplate =
    "(function() {\n"
    "  try {\n"
    "    return JSON.stringify({'result': %1});\n"
    "  } catch( e ) {\n"
    "    return JSON.stringify({'error': {'name': e['name'], 'message': e['message'], 'file': e['fileName'], "
    "'line': e['lineNumber'], 'stack': e['stack']}});\n"
    "  }\n"
    "}());";

QString displayForm(const QString& expression) {
  return expression.size() < 100 ? expression : expression.left(50) + QLatin1String("...") + expression.right(50);
}

QString exceptionDetail(const Json::Value& e) {
  QString detail = QStringLiteral("%1: %2").arg(jsonText(e["name"]), jsonText(e["message"]));
  if (e.isMember("file")) {
    detail += QStringLiteral(" at %1").arg(jsonText(e["file"]));
    if (e.isMember("line")) {
      detail += QStringLiteral(": %1").arg(jsonText(e["line"]));
    }
  }
  detail += QLatin1Char('.');
  if (e.isMember("stack")) {
    detail += QStringLiteral(" Stacktrace: %1").arg(jsonText(e["stack"]));
  }
  return detail;
}

QString envelope(const QString& expression) { return QString::fromLatin1(callTemplate).arg(expression); }

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
  const QString detail = e.isObject() ? exceptionDetail(e) : jsonText(e);
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
