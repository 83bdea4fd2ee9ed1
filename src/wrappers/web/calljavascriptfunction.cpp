#include "wrappers/web/calljavascriptfunction.h"

#include "corvexhook/inspector.h"
#include "wrappers/web/escaping.h"
#include "wrappers/web/htmlcomponent.h"
#include "wrappers/web/jsonanswer.h"
#include "wrappers/web/retrievehtmlobject.h"

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

}  // namespace

JsonResult callJavaScriptFunction(HTMLComponent* component, const QString& expression, unsigned int timeoutMs) {
  const JavaScriptAnswer answer = component->evaluateJS(QString::fromLatin1(callTemplate).arg(expression), timeoutMs);
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

FunctionCallResult<HTML_Object*> contextDocument(HTMLComponent* component) {
  return htmlObjectFromJavaScriptResult(
      component,
      QStringLiteral("(function() { if( !window.__corvex__ctxwin ) { window.__corvex__ctxwin = window } "
                     "return window.__corvex__ctxwin.document; }());"),
      QString(), 0);
}

FunctionCallResult<HTML_Object*> documentByContextName(HTMLComponent* component, const QString& name) {
  const int open = name.indexOf(QLatin1Char('['));
  const int close = name.indexOf(QLatin1Char(']'));
  const QString context = open >= 0 && close > open ? name.mid(open + 1, close - open - 1) : QString();
  const FunctionCallResult<HTML_Object*> document = htmlObjectFromJavaScriptResult(
      component, QStringLiteral("__corvex__documentOfContext('%1');").arg(escapeQuoteWithBackslash(context)), QString(),
      0);
  if (!document.failed() && document.value) {
    Inspector::self()->removeUnmatchedProperties(unescape(name));
  }
  return document;
}

}  // namespace Corvex::WebWrapper
