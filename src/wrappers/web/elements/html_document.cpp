#include "wrappers/web/elements/html_document.h"

#include "wrappers/web/glue/scriptclass.h"
#include "wrappers/web/object/references.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/page/escaping.h"

namespace Corvex::WebWrapper {

const char* HTML_Document::className() const { return ScriptName; }

FunctionCallResult<HTML_Object*> HTML_Document::getElementById(const QString& id) {
  using Result = FunctionCallResult<HTML_Object*>;
  const Result element = htmlObjectFromJavaScriptResult(
      component, QStringLiteral("%1.getElementById('%2');").arg(reference, escapeQuoteWithBackslash(id)), QString(), 0);
  return element.failed()
             ? Result::failure(QStringLiteral("Error fetching element with id '%1': %2").arg(id, element.error))
             : element;
}

FunctionCallResult<HTML_Array*> HTML_Document::getElementsByTagName(const QString& tagName) {
  using Result = FunctionCallResult<HTML_Array*>;
  const QString elements = nextDriverReference();
  const JavaScriptAnswer answer = evaluateJS(QStringLiteral("%1 = %2.getElementsByTagName('%3');")
                                                 .arg(elements, reference, escapeQuoteWithBackslash(tagName)));
  if (!answer.succeeded()) {
    return Result::failure(QStringLiteral("Error obtaining elements for tagname '%1': %2").arg(tagName, answer.text));
  }
  return Result::success(new HTML_Array(QString(), elements, component));
}

namespace {

constexpr MethodRow methods[] = {
    method<&HTML_Document::getElementById>("getElementById", "id"),
    method<&HTML_Document::getElementsByTagName>("getElementsByTagName", "tagName"),
};

}  // namespace

const ClassMembers HTML_Document_Class = classMembers(methods);

}  // namespace Corvex::WebWrapper
