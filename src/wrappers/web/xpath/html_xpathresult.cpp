#include "wrappers/web/xpath/html_xpathresult.h"

#include "wrappers/web/object/references.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/page/escaping.h"
#include "wrappers/web/page/htmlcomponent.h"

#include <limits>

namespace Corvex::WebWrapper {

namespace {

constexpr PropertyRow properties[] = {
    property<&HTML_XPathResult::booleanValue>("booleanValue"),
    property<&HTML_XPathResult::numberValue>("numberValue"),
    property<&HTML_XPathResult::stringValue>("stringValue"),
    property<&HTML_XPathResult::snapshotLength>("snapshotLength"),
};

constexpr MethodRow methods[] = {
    method<&HTML_XPathResult::booleanValue>("booleanValue"),
    method<&HTML_XPathResult::numberValue>("numberValue"),
    method<&HTML_XPathResult::singleNodeValue>("singleNodeValue"),
    method<&HTML_XPathResult::snapshotItem>("snapshotItem", "index"),
    method<&HTML_XPathResult::snapshotLength>("snapshotLength"),
    method<&HTML_XPathResult::stringValue>("stringValue"),
};

/// A number as JavaScript writes it.
double toNumber(const QString& text, bool* isNumber) {
  const double infinity = std::numeric_limits<double>::infinity();
  *isNumber = true;
  if (text == QLatin1String("Infinity") || text == QLatin1String("-Infinity")) {
    return text.startsWith(QLatin1Char('-')) ? -infinity : infinity;
  }
  return text.toDouble(isNumber);
}

}  // namespace

const ClassMembers HTML_XPathResult_Class = classMembers(properties, methods);

void createdHtmlXPathResult(HTML_XPathResult* result) {
  referencedXPathResults.add(result, &result->reference, result->component);
}

void destroyedHtmlXPathResult(HTML_XPathResult* result) { referencedXPathResults.remove(result); }

HTML_XPathResult::HTML_XPathResult(const QString& objectReference, HTMLComponent* connection)
    : reference(objectReference), component(connection) {
  createdHtmlXPathResult(this);
}

HTML_XPathResult::~HTML_XPathResult() { destroyedHtmlXPathResult(this); }

bool HTML_XPathResult::hasValidReference() const { return reference != deadReference(); }

void HTML_XPathResult::invalidate() { reference = deadReference(); }

QString HTML_XPathResult::deadError() { return deadXPathResultReferenceError(); }

FunctionCallResult<QString> HTML_XPathResult::ask(const QString& code, const char* what) const {
  const JavaScriptAnswer answer = component->evaluateJS(code, 0);
  return answer.succeeded()
             ? FunctionCallResult<QString>::success(answer.text)
             : FunctionCallResult<QString>::failure(QStringLiteral("Error obtaining %1 of xpath resultset %2: %3")
                                                        .arg(QLatin1String(what), reference, answer.text));
}

FunctionCallResult<bool> HTML_XPathResult::booleanValue() const {
  const FunctionCallResult<QString> text = ask(reference + QLatin1String(".booleanValue()"), "boolean value");
  return {text.value == QLatin1String("true"), text.error};
}

FunctionCallResult<double> HTML_XPathResult::numberValue() const {
  const FunctionCallResult<QString> text = ask(reference + QLatin1String(".numberValue()"), "number value");
  bool isNumber = false;
  const double number = toNumber(text.value, &isNumber);
  if (text.failed() || isNumber) {
    return {number, text.error};
  }
  return FunctionCallResult<double>::failure(
      QStringLiteral("Error converting number value of xpath resultset %1 to double, received value is '%2'")
          .arg(reference, text.value));
}

FunctionCallResult<QString> HTML_XPathResult::stringValue() const {
  return ask(reference + QLatin1String(".stringValue()"), "string value");
}

FunctionCallResult<int> HTML_XPathResult::snapshotLength() const {
  const FunctionCallResult<QString> text =
      ask(QStringLiteral("__corvex__xpath__snapshotLength(%1);").arg(reference), "snapshot length");
  bool isNumber = false;
  const int length = text.value.toInt(&isNumber);
  if (text.failed() || isNumber) {
    return {length, text.error};
  }
  return FunctionCallResult<int>::failure(
      QStringLiteral("Error converting snapshot length of xpath resultset %1 to integer, received value is '%2'")
          .arg(reference, text.value));
}

FunctionCallResult<HTML_Object*> HTML_XPathResult::snapshotItem(int index) {
  using Result = FunctionCallResult<HTML_Object*>;
  const Result item = htmlObjectFromJavaScriptResult(
      component, QStringLiteral("__corvex__xpath__snapshotItem(%1, %2);").arg(reference, QString::number(index)),
      QString(), 0);
  if (item.failed()) {
    return Result::failure(QStringLiteral("Error obtaining snapshot item %1 from xpath result %2: %3")
                               .arg(QString::number(index), reference, item.error));
  }
  return item.value ? item : Result::failure(QStringLiteral("No XPath result item at index %1").arg(index));
}

// Stands here, since only this room knows of XPath.
FunctionCallResult<HTML_XPathResult*> HTML_Object::evaluateXPath(const QString& expression) {
  const QString global = nextDriverReference();
  const JavaScriptAnswer answer =
      evaluateJS(QStringLiteral("%1 = xpathDomEval( \"%2\", %3 );true;")
                     .arg(global, escapeObjectNameForUseAsStringLiteral(expression), reference));
  return answer.succeeded() ? FunctionCallResult<HTML_XPathResult*>::success(new HTML_XPathResult(global, component))
                            : FunctionCallResult<HTML_XPathResult*>::failure(
                                  QStringLiteral("Error evaluating xpath '%1': %2").arg(expression, answer.text));
}

}  // namespace Corvex::WebWrapper
