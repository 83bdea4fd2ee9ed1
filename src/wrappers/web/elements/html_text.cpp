#include "wrappers/web/elements/html_text.h"

#include "wrappers/web/glue/scriptclass.h"
#include "wrappers/web/page/escaping.h"
#include "wrappers/web/page/htmlcomponent.h"

namespace Corvex::WebWrapper {

namespace {

const char* const fieldError = "Error clicking text field: %1";
// A browser that keeps what was typed before, unless the field is empty.
const int browserThatNeedsClearing = 5;

}  // namespace

const char* HTML_TextBase::className() const { return ScriptName; }

FunctionCallResult<QString> HTML_TextBase::value() const { return property("value"); }

QString HTML_TextBase::evaluateInField(const QString& code) const {
  const JavaScriptAnswer answer = evaluateJS(code);
  return answer.succeeded() ? QString() : QString::fromLatin1(fieldError).arg(answer.text);
}

QString HTML_TextBase::setValue(const QString& value) {
  const FunctionCallResult<QString> fieldType = type();
  if (fieldType.failed()) {
    return QStringLiteral("Cannot set value as determining text field type failed: %1").arg(fieldType.error);
  }
  if (fieldType.value == QLatin1String("file")) {
    return component->selectFileToUpload(this, value);
  }
  QString error = focus();
  if (error.isEmpty()) {
    error = evaluateInField(QStringLiteral("__corvex__click(%1);").arg(reference));
  }
  if (!error.isEmpty()) {
    return error;
  }
  if (value == QLatin1String("<Return>")) {
    return evaluateInField(QStringLiteral("__corvex__typeText( %1, String.fromCharCode( 13 ) );").arg(reference));
  }
  if (component->browserKind() == browserThatNeedsClearing) {
    const JavaScriptAnswer cleared = evaluateJS(reference + QLatin1String(".value = '';"));
    if (cleared.failed) {
      return QString::fromLatin1(fieldError).arg(cleared.text);
    }
  }
  return evaluateInField(
      QStringLiteral("__corvex__setTextFieldValue(%1, '%2' );").arg(reference, escapeForUseAsStringLiteral(value)));
}

FunctionCallResult<QString> HTML_TextBase::selectedText() const { return textProperty(PropertyId::SelectedText); }

QString HTML_TextBase::selectAll() {
  const JavaScriptAnswer answer = evaluateJS(QStringLiteral("window.top.__corvex.selectAll( %1 )").arg(reference));
  return answer.succeeded() ? QString() : QStringLiteral("Error selecting content of text field: %1").arg(answer.text);
}

const char* HTML_Text::className() const { return ScriptName; }

const char* HTML_TextArea::className() const { return ScriptName; }

namespace {

constexpr PropertyRow properties[] = {
    property<&HTML_TextBase::selectedText>("selectedText"),
    property<&HTML_TextBase::value, &HTML_TextBase::setValue>("value"),
};

constexpr MethodRow methods[] = {
    method<&HTML_TextBase::selectAll>("selectAll"),
    method<&HTML_TextBase::setValue>("setValue", "value"),
    method<&HTML_TextBase::value>("value"),
};

}  // namespace

const ClassMembers HTML_TextBase_Class = classMembers(properties, methods);
}  // namespace Corvex::WebWrapper
