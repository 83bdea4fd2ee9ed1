#include "wrappers/web/object/webobject.h"
#include "wrappers/web/page/calljavascriptfunction.h"
#include "wrappers/web/page/escaping.h"
#include "wrappers/web/page/htmlcomponent.h"
#include "wrappers/web/page/jsonanswer.h"
#include "wrappers/web/setup/wrapperconfig.h"

#include <cstdio>

namespace Corvex::WebWrapper {

using TextResult = FunctionCallResult<QString>;

namespace {

struct PropertyGetter {
  PropertyId id;
  const char* name;
  /// "%1" stands for the reference, "%2" for `pageProperty`.
  const char* code;
  const char* pageProperty;
};

const char* const plain = "window.top.__corvex.getPropertyValue( %1, '%2' ).replace(/\\s*$/, '')";
const char* const rect = "window.top.__corvex.getElementRectAsObject( %1 ).%2";

const PropertyGetter propertyGetters[] = {
    {PropertyId::Id, "id", plain, "id"},
    {PropertyId::InnerText, "innerText", plain, "innerText"},
    {PropertyId::InnerHTML, "innerHTML", plain, "innerHTML"},
    {PropertyId::X, "x", rect, "x"},
    {PropertyId::Y, "y", rect, "y"},
    {PropertyId::Width, "width", rect, "width"},
    {PropertyId::Height, "height", rect, "height"},
    {PropertyId::TagName, "tagName", plain, "tagName"},
    {PropertyId::Title, "title", plain, "title"},
    {PropertyId::StyleDisplay, "styleDisplay", plain, "style.display"},
    {PropertyId::DomClassName, "domClassName", plain, "className"},
    {PropertyId::DomPath, "domPath", "__corvex__qualifiedName( %1 ).replace(/\\s*$/, '')", nullptr},
    {PropertyId::NumChildren, "numChildren", "__corvexDOMAPI.numChildren( %1 )", nullptr},
    {PropertyId::Visible, "visible", "__corvex__isVisible( %1 )", nullptr},
    {PropertyId::SimplifiedInnerText, "simplifiedInnerText", "window.top.__corvex.getSimplifiedInnerText( %1 )",
     nullptr},
    {PropertyId::SelectedText, "selectedText", "window.top.__corvex.getSelectedText( %1 )", nullptr},
};

const PropertyGetter* findGetter(PropertyId id) {
  for (const PropertyGetter& getter : propertyGetters) {
    if (getter.id == id) {
      return &getter;
    }
  }
  return nullptr;
}

QString retrievalError(PropertyId id, const QString& error) {
  return QStringLiteral("Error retrieving %1: %2").arg(QLatin1String(findGetter(id)->name), error);
}

QString getPropertyAssignmentStr(const QString& reference, const QString& name) {
  const QString target = isValidJSIdentifier(name)
                             ? QLatin1Char('.') + name
                             : QLatin1String("['") + escapeQuoteWithBackslash(name) + QLatin1String("']");
  return reference + target + QLatin1Char('=');
}

QString settingResult(const JavaScriptAnswer& answer, const char* sentence, const char* name, const QString& value) {
  return answer.succeeded() ? QString()
                            : QString::fromLatin1(sentence).arg(QString::fromUtf8(name), value, answer.text);
}

}  // namespace

bool HTML_Object::isJavaScriptPropertyReadSupported(const QString& name) {
  return !parsePropertyIdString(name).failed();
}

FunctionCallResult<PropertyId> HTML_Object::parsePropertyIdString(const QString& name) {
  for (const PropertyGetter& getter : propertyGetters) {
    if (name == QLatin1String(getter.name)) {
      return FunctionCallResult<PropertyId>::success(getter.id);
    }
  }
  return FunctionCallResult<PropertyId>::failure(
      QStringLiteral("Unknown property name '%1', cannot convert to enum.").arg(name));
}

QString HTML_Object::propertyGetterCode(PropertyId id) const {
  const PropertyGetter* getter = findGetter(id);
  if (!getter) {
    std::fprintf(stderr, "Unknown property name passed to propertyGetterCode: %d\n", static_cast<int>(id));
    return QString();
  }
  const QString code = QString::fromLatin1(getter->code);
  return getter->pageProperty ? code.arg(reference, QString::fromLatin1(getter->pageProperty)) : code.arg(reference);
}

TextResult HTML_Object::textProperty(PropertyId id) const {
  const FunctionCallResult<Json::Value> answer = callJavaScriptFunction(component, propertyGetterCode(id), 0);
  return answer.failed() ? TextResult::failure(retrievalError(id, answer.error))
                         : TextResult::success(jsonText(answer.value));
}

FunctionCallResult<int> HTML_Object::numberProperty(PropertyId id) const {
  const FunctionCallResult<Json::Value> answer = callJavaScriptFunction(component, propertyGetterCode(id), 0);
  const FunctionCallResult<int> number =
      answer.failed() ? FunctionCallResult<int>::failure(answer.error) : jsonInt(answer.value);
  return number.failed() ? FunctionCallResult<int>::failure(retrievalError(id, number.error)) : number;
}

FunctionCallResult<bool> HTML_Object::boolProperty(const char* name) const {
  const TextResult text = property(name);
  return text.failed() ? FunctionCallResult<bool>::failure(text.error)
                       : FunctionCallResult<bool>::success(text.value == QLatin1String("true"));
}

FunctionCallResult<int> HTML_Object::integerProperty(const char* name, const char* sentence) const {
  const TextResult text = property(name);
  if (text.failed()) {
    return FunctionCallResult<int>::failure(text.error);
  }
  bool isNumber = false;
  const int number = text.value.toInt(&isNumber);
  return isNumber ? FunctionCallResult<int>::success(number)
                  : FunctionCallResult<int>::failure(QString::fromLatin1(sentence).arg(text.value));
}

TextResult HTML_Object::id() const { return textProperty(PropertyId::Id); }

TextResult HTML_Object::innerText() const { return textProperty(PropertyId::InnerText); }

TextResult HTML_Object::innerHTML() const { return textProperty(PropertyId::InnerHTML); }

FunctionCallResult<int> HTML_Object::x() const { return numberProperty(PropertyId::X); }

FunctionCallResult<int> HTML_Object::y() const { return numberProperty(PropertyId::Y); }

FunctionCallResult<int> HTML_Object::width() const { return numberProperty(PropertyId::Width); }

FunctionCallResult<int> HTML_Object::height() const { return numberProperty(PropertyId::Height); }

TextResult HTML_Object::tagName() const { return textProperty(PropertyId::TagName); }

TextResult HTML_Object::title() const { return textProperty(PropertyId::Title); }

TextResult HTML_Object::styleDisplay() const { return textProperty(PropertyId::StyleDisplay); }

TextResult HTML_Object::styleVisibility() const { return property("style.visibility"); }

TextResult HTML_Object::domClassName() const { return textProperty(PropertyId::DomClassName); }

TextResult HTML_Object::simplifiedInnerText() const { return textProperty(PropertyId::SimplifiedInnerText); }

FunctionCallResult<int> HTML_Object::numChildren() const { return numberProperty(PropertyId::NumChildren); }

TextResult HTML_Object::hierarchicalQualifiedName() const {
  const FunctionCallResult<Json::Value> answer =
      callJavaScriptFunction(component, propertyGetterCode(PropertyId::DomPath), 0);
  return answer.failed()
             ? TextResult::failure(QStringLiteral("Error while generating hierarchical name: %1").arg(answer.error))
             : TextResult::success(jsonText(answer.value));
}

FunctionCallResult<bool> HTML_Object::visible() const {
  if (component->config()->backwardsCompatibleVisiblePropertyForHTML_Object()) {
    return boolProperty("visible");
  }
  const FunctionCallResult<Json::Value> answer =
      callJavaScriptFunction(component, propertyGetterCode(PropertyId::Visible), 0);
  const FunctionCallResult<bool> visible =
      answer.failed() ? FunctionCallResult<bool>::failure(answer.error) : jsonBool(answer.value);
  return visible.failed()
             ? FunctionCallResult<bool>::failure(QStringLiteral("Error determining visibility: %1").arg(visible.error))
             : visible;
}

TextResult HTML_Object::property(const char* name) const {
  const QString propertyName = QString::fromUtf8(name);
  const unsigned int timeoutMs = component->browserKind() == 2 ? 5000 : 0;
  const JavaScriptAnswer answer =
      component->evaluateJS(QStringLiteral("window.top.__corvex.getPropertyValue( %1, '%2');")
                                .arg(reference, escapeQuoteWithBackslash(propertyName)),
                            timeoutMs);
  if (!answer.succeeded()) {
    return TextResult::failure(
        QStringLiteral("Error while obtaining property '%1': %2").arg(propertyName, answer.text));
  }
  return TextResult::success(answer.text);
}

QString HTML_Object::setProperty(const char* name, const char* value) {
  const QString text = QString::fromUtf8(value);
  const JavaScriptAnswer answer =
      evaluateJS(getPropertyAssignmentStr(reference, QString::fromUtf8(name)) + QLatin1Char('\'') +
                 escapeForUseAsStringLiteral(text) + QLatin1String("';"));
  return settingResult(answer, "Error setting property '%1' to value '%2': %3", name, text);
}

QString HTML_Object::setProperty(const char* name, int value) {
  const QString text = QString::number(value);
  const JavaScriptAnswer answer =
      evaluateJS(getPropertyAssignmentStr(reference, QString::fromUtf8(name)) + text + QLatin1Char(';'));
  return settingResult(answer, "Error setting property '%1' to value %2: %3", name, text);
}

QString HTML_Object::setProperty(const char* name, bool value) {
  const QString text = QLatin1String(value ? "true" : "false");
  const JavaScriptAnswer answer =
      evaluateJS(getPropertyAssignmentStr(reference, QString::fromUtf8(name)) + text + QLatin1Char(';'));
  return settingResult(answer, "Error setting property '%1' to value %2: %3", name, text);
}

}  // namespace Corvex::WebWrapper
