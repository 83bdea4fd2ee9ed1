#include "wrappers/web/object/retrievehtmlobject.h"

#include "wrappers/web/page/htmlcomponent.h"
#include "wrappers/web/page/jsonanswer.h"

#include <exception>

namespace Corvex::WebWrapper {

namespace {

using ObjectResult = FunctionCallResult<HTML_Object*>;

const char* const retrieveTemplate =
    "(function() {\n"
    "  try {\n"
    "    var dummy = %1;\n"
    "    if ( !dummy ) {\n"
    "        return JSON.stringify({'refName': null, 'type': '[unknown]'});\n"
    "    }\n"
    "    var globalRefName = __corvex__idForObject( dummy );\n"
    "    return JSON.stringify({'refName': globalRefName, 'type': __corvex__typeOf( dummy ) });\n"
    "  } catch( e ) {\n"
    "    return JSON.stringify({'error': {'name': e['name'], 'message': e['message'], 'file': e['fileName'], "
    "'line': e['lineNumber'], 'stack': e['stack']}});"
    "  }\n"
    "})();";

QString text(const Json::Value& value) { return QString::fromStdString(value.asString()); }

QString exceptionMessage(const Json::Value& e) {
  QString message = QLatin1String("Error evaluating JavaScript to retrieve HTML Object: ") + text(e["name"]) +
                    QLatin1String(": ") + text(e["message"]);
  if (e.isMember("file")) {
    message += QLatin1String(" at ") + text(e["file"]);
    if (e.isMember("line")) {
      message += QLatin1Char(':') + text(e["line"]);
    }
  }
  message += QLatin1String(". ");
  if (e.isMember("stack")) {
    message += QLatin1String("Stacktrace: ") + text(e["stack"]);
  }
  return message;
}

/// The conversions of values throw where the page sends something of another kind.
ObjectResult objectFromAnswer(HTMLComponent* component, const Json::Value& root, const QString& raw,
                              const QString& name) {
  if (root.isMember("error")) {
    return ObjectResult::failure(exceptionMessage(root["error"]));
  }
  for (const char* member : {"refName", "type"}) {
    if (!root.isMember(member)) {
      return ObjectResult::failure(
          QStringLiteral("JSON return value '%1' is missing the %2 member.").arg(raw, QLatin1String(member)));
    }
  }
  return ObjectResult::success(htmlObjectFromReferenceInfo(component, text(root["type"]), text(root["refName"]), name));
}

}  // namespace

ObjectResult htmlObjectFromJavaScriptResult(HTMLComponent* component, const QString& expression, const QString& name,
                                            unsigned int timeoutMs) {
  const JavaScriptAnswer answer =
      component->evaluateJS(QString::fromLatin1(retrieveTemplate).arg(expression), timeoutMs);
  if (!answer.succeeded()) {
    return ObjectResult::failure(answer.text);
  }
  const FunctionCallResult<Json::Value> root = parseJson(answer.text);
  if (root.failed()) {
    return ObjectResult::failure(
        QStringLiteral("Failed to parse JSON return value '%1':%2").arg(answer.text, root.error));
  }
  if (!root.value.isObject()) {
    return ObjectResult::failure(
        QStringLiteral("Failed to parse JSON return value '%1': expected an object, got %2 instead.")
            .arg(answer.text, QString::number(root.value.type())));
  }
  try {
    return objectFromAnswer(component, root.value, answer.text, name);
  } catch (const std::exception& e) {
    return ObjectResult::failure(
        QStringLiteral("Failed to parse JSON return value '%1': %2").arg(answer.text, QString::fromUtf8(e.what())));
  }
}

}  // namespace Corvex::WebWrapper
