#include "wrappers/web/object/webobject.h"

#include "wrappers/web/object/queryrectanglewithfunction.h"
#include "wrappers/web/object/references.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/page/calljavascriptfunction.h"
#include "wrappers/web/page/htmlcomponent.h"
#include "wrappers/web/page/jsonanswer.h"

namespace Corvex::WebWrapper {

using ObjectResult = FunctionCallResult<HTML_Object*>;

HTML_Object::HTML_Object(const QString& name, const QString& objectReference, HTMLComponent* connection)
    : m_name(name), reference(objectReference), component(connection) {
  createdHtmlObject(this);
}

HTML_Object::~HTML_Object() { destroyedHtmlObject(this); }

const char* HTML_Object::className() const { return ScriptName; }

bool HTML_Object::hasValidReference() const { return reference != deadReference(); }

QString HTML_Object::deadError() { return deadObjectReferenceError(); }

void HTML_Object::invalidate() { reference = deadReference(); }

FunctionCallResult<bool> HTML_Object::sameAs(HTML_Object* other) const {
  if (other == this || other->reference == reference) {
    return FunctionCallResult<bool>::success(true);
  }
  const JavaScriptAnswer answer = evaluateJS(reference + QLatin1String(" === ") + other->reference);
  if (answer.failed) {
    return FunctionCallResult<bool>::failure(QStringLiteral("Error comparing javascript reference '%1' to '%2': %3")
                                                 .arg(reference, other->reference, answer.text));
  }
  return FunctionCallResult<bool>::success(answer.text == QLatin1String("true"));
}

JavaScriptAnswer HTML_Object::evaluateJS(const QString& code) const { return component->evaluateJS(code, 0); }

FunctionCallResult<QString> HTML_Object::name() const {
  if (m_name.isEmpty()) {
    const JavaScriptAnswer answer = evaluateJS(QStringLiteral("__corvex__uniqueNameInLeaf(%1);").arg(reference));
    if (!answer.succeeded()) {
      return FunctionCallResult<QString>::failure(QStringLiteral("Error obtaining name: %1").arg(answer.text));
    }
    m_name = answer.text;
  }
  return FunctionCallResult<QString>::success(m_name);
}

FunctionCallResult<bool> HTML_Object::hasFocus() const {
  const FunctionCallResult<Json::Value> answer =
      callJavaScriptFunction(component, QStringLiteral("window.top.__corvex.hasFocus( %1 )").arg(reference), 0);
  if (answer.failed()) {
    return FunctionCallResult<bool>::failure(QStringLiteral("Error obtaining focus state: %1").arg(answer.error));
  }
  if (!answer.value.isBool()) {
    return FunctionCallResult<bool>::failure(
        QStringLiteral("Error: Json object '%1' has unexpected type (expected bool): %2")
            .arg(QString::fromStdString(answer.value.toStyledString()), QString::number(answer.value.type())));
  }
  return FunctionCallResult<bool>::success(answer.value.asBool());
}

ObjectResult HTML_Object::navigate(const QString& expression, const char* sentence) {
  const ObjectResult result = htmlObjectFromJavaScriptResult(component, expression, QString(), 0);
  return result.failed() ? ObjectResult::failure(QString::fromLatin1(sentence).arg(result.error)) : result;
}

ObjectResult HTML_Object::parentElement() {
  return navigate(reference + QLatin1String(".parentNode;"), "Error obtaining parent element: %1");
}

ObjectResult HTML_Object::firstChild() {
  return navigate(QStringLiteral("__corvexDOMAPI.firstChild(%1);").arg(reference), "Error obtaining first child: %1");
}

ObjectResult HTML_Object::lastChild() {
  return navigate(QStringLiteral("__corvexDOMAPI.lastChild(%1);").arg(reference), "Error obtaining last child: %1");
}

ObjectResult HTML_Object::nextSibling() {
  return navigate(QStringLiteral("__corvexDOMAPI.nextSibling(%1);").arg(reference), "Error obtaining next sibling: %1");
}

ObjectResult HTML_Object::previousSibling() {
  return navigate(QStringLiteral("__corvexDOMAPI.previousSibling(%1);").arg(reference),
                  "Error obtaining previous sibling: %1");
}

ObjectResult HTML_Object::shadowRoot() {
  return navigate(reference + QLatin1String(".shadowRoot;"), "Error obtaining shadow root: %1");
}

QString HTML_Object::scrollTo(bool top) const {
  const JavaScriptAnswer answer = evaluateJS(
      QStringLiteral("__corvex__scrollToElement(%1, %2);").arg(reference, QLatin1String(top ? "true" : "false")));
  return answer.succeeded() ? QString() : QStringLiteral("Error scrolling to object: %1").arg(answer.text);
}

QString HTML_Object::scrollToTop() const { return scrollTo(true); }

FunctionCallResult<ScreenRectangle> HTML_Object::screenRect() const { return component->getScreenRect(this, false); }

FunctionCallResult<ScreenRectangle> HTML_Object::boundingClientRect() const {
  return sizeForm(queryRectangleWithFunction(QStringLiteral("__corvex__getClientBoundingRect"), this));
}

}  // namespace Corvex::WebWrapper
