#include "wrappers/web/elements/html_formelement.h"

#include "wrappers/web/glue/scriptclass.h"

namespace Corvex::WebWrapper {

const char* HTML_FormElement::className() const { return ScriptName; }

FunctionCallResult<bool> HTML_FormElement::disabled() const { return boolProperty("disabled"); }

QString HTML_FormElement::setDisabled(bool disabled) { return setProperty("disabled", disabled); }

QString HTML_FormElement::focus() { return invoke("focus").error; }

FunctionCallResult<QString> HTML_FormElement::type() const { return property("type"); }

QString HTML_FormElement::sendChangeEvent(const char* sentence) const {
  const JavaScriptAnswer answer = evaluateJS(QStringLiteral("__corvex__sendChangeEvent( %1 )").arg(reference));
  return answer.succeeded() ? QString() : QString::fromLatin1(sentence).arg(answer.text);
}

namespace {

constexpr PropertyRow properties[] = {
    property<&HTML_FormElement::disabled, &HTML_FormElement::setDisabled>("disabled"),
    property<&HTML_FormElement::type>("type"),
};

constexpr MethodRow methods[] = {
    method<&HTML_FormElement::disabled>("disabled"),
    method<&HTML_FormElement::focus>("focus"),
    method<&HTML_FormElement::setDisabled>("setDisabled", "disabled"),
    method<&HTML_FormElement::type>("type"),
};

}  // namespace

const ClassMembers HTML_FormElement_Class = classMembers(properties, methods);

}  // namespace Corvex::WebWrapper
