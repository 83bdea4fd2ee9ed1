#include "wrappers/web/object/retrievehtmlobject.h"

#include "wrappers/web/object/references.h"
#include "wrappers/web/page/exceptiontext.h"
#include "wrappers/web/page/htmlcomponent.h"
#include "wrappers/web/page/jsonanswer.h"

#include <exception>

namespace Corvex::WebWrapper {

namespace {

using ObjectResult = FunctionCallResult<HTML_Object*>;

// Throws for a list or an object.
QString text(const Json::Value& value) { return QString::fromStdString(value.asString()); }

const ExceptionForm retrievalForm = {text, " at ", ":", ". ", "Stacktrace: "};

const char* const retrieveTemplate =
    "(function() {\n"
    "  try {\n"
    "    var dummy = %1;\n"
    "    if ( !dummy ) {\n"
    "        return JSON.stringify({'refName': null, 'type': '[unknown]'});\n"
    "    }\n"
    "    var globalRefName = __corvex__idForObject( dummy );\n"
    "    return JSON.stringify({'refName': globalRefName, 'type': __corvex__typeOf( dummy )%2 });\n"
    "%3"
    "  }\n"
    "})();";

int readinessWanted = 0;

/// The conversions of values throw where the page sends something of another kind.
ObjectResult objectFromAnswer(HTMLComponent* component, const Json::Value& root, const QString& raw,
                              const QString& name) {
  if (root.isMember("error")) {
    return ObjectResult::failure(QLatin1String("Error evaluating JavaScript to retrieve HTML Object: ") +
                                 exceptionText(root["error"], retrievalForm));
  }
  for (const char* member : {"refName", "type"}) {
    if (!root.isMember(member)) {
      return ObjectResult::failure(
          QStringLiteral("JSON return value '%1' is missing the %2 member.").arg(raw, QLatin1String(member)));
    }
  }
  const QString reference = text(root["refName"]);
  HTML_Object* const object = htmlObjectFromReferenceInfo(component, text(root["type"]), reference, name);
  if (object && root["ready"].isString()) {
    object->keepReadiness(text(root["ready"]));
  }
  return !object && !reference.isEmpty() && !isObjectReference(reference)
             ? ObjectResult::failure(QStringLiteral("The page gave a text that is no reference for an object: '%1'. It "
                                                    "replaces functions of the hook script.")
                                         .arg(reference.left(100)))
             : ObjectResult::success(object);
}

QString retrieval(const QString& expression) {
  const QLatin1String readiness(readinessWanted > 0 ? ", 'ready': __corvex__readiness( dummy )" : "");
  return QString::fromLatin1(retrieveTemplate).arg(expression, readiness, QLatin1String(catchAsError));
}

ObjectResult objectFrom(HTMLComponent* component, const JavaScriptAnswer& answer, const QString& name) {
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

}  // namespace

ReadinessToo::ReadinessToo() { ++readinessWanted; }

ReadinessToo::~ReadinessToo() { --readinessWanted; }

ObjectResult htmlObjectFromJavaScriptResult(HTMLComponent* component, const QString& expression, const QString& name,
                                            unsigned int timeoutMs) {
  return objectFrom(component, component->evaluateJS(retrieval(expression), timeoutMs), name);
}

ObjectResult htmlObjectFromAnyDocument(HTMLComponent* component, const QString& expression, const QString& name,
                                       unsigned int timeoutMs) {
  return objectFrom(component, component->evaluateInAnyDocument(retrieval(expression), timeoutMs), name);
}

}  // namespace Corvex::WebWrapper
