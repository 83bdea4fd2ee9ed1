#include "wrappers/web/elements/html_select.h"

#include "shared/wait.h"
#include "wrappers/web/glue/scriptclass.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/page/calljavascriptfunction.h"
#include "wrappers/web/page/escaping.h"
#include "wrappers/web/page/jsonanswer.h"

#include <memory>

namespace Corvex::WebWrapper {

namespace {

const char* const textOfOption = "__corvex__selectOptionText";
const char* const valueOfOption = "__corvex__selectOptionValue";
const char* const indexOfOption = "__corvex__standardselectExtension.optionIndex";

QString wrongElement(Json::ArrayIndex index, const Json::Value& list, const char* what, Json::ValueType expected) {
  return QStringLiteral("Element number %1 in array of %2 is of type %3 but expected is type: %4. Array Value: '%5'")
      .arg(QString::number(index), QLatin1String(what), QString::number(list[index].type()), QString::number(expected),
           compactJson(list));
}

/// Reads a list that the page keeps about the selection, each element through `read`, after `fits`.
template <typename T>
FunctionCallResult<std::vector<T>> readList(const HTML_Select* select, const char* function, const char* what,
                                            Json::ValueType expected, bool (Json::Value::*fits)() const,
                                            T (*read)(const Json::Value&)) {
  using Result = FunctionCallResult<std::vector<T>>;
  const QString expression =
      QStringLiteral("__corvex__standardselectExtension.%1(%2)").arg(QLatin1String(function), select->reference);
  const FunctionCallResult<Json::Value> answer = callJavaScriptFunction(select->component, expression, 0);
  if (answer.failed()) {
    return Result::failure(QStringLiteral("Error while obtaining %1: %2").arg(QLatin1String(what), answer.error));
  }
  if (!answer.value.isArray()) {
    return Result::failure(QStringLiteral("JSON return value for %1 is not an array: '%2'")
                               .arg(QLatin1String(what), compactJson(answer.value)));
  }
  std::vector<T> values;
  for (Json::ArrayIndex i = 0; i < answer.value.size(); ++i) {
    if (!(answer.value[i].*fits)()) {
      return Result::failure(wrongElement(i, answer.value, what, expected));
    }
    values.push_back(read(answer.value[i]));
  }
  return Result::success(values);
}

int readInt(const Json::Value& value) { return value.asInt(); }

std::string readText(const Json::Value& value) { return value.asString(); }

}  // namespace

HTML_Select::HTML_Select(const QString& name, const QString& objectReference, HTMLComponent* connection,
                         bool allowsMultiple)
    : HTML_FormElement(name, objectReference, connection), multiple(allowsMultiple) {}

const char* HTML_Select::className() const { return ScriptName; }

QString HTML_Select::setSelectedIndex(int index) {
  const QString error = focus();
  return error.isEmpty() ? setProperty("selectedIndex", index) : error;
}

FunctionCallResult<int> HTML_Select::selectedIndex() const {
  return integerProperty("selectedIndex", "Could not converted selected index value '%1' to integer.");
}

QString HTML_Select::setSelectedOption(const QString& text) {
  const QString error = focus();
  if (!error.isEmpty()) {
    return error;
  }
  const QString statement =
      QStringLiteral("%1(%2, '%3' );")
          .arg(QLatin1String(multiple ? "__corvex__selectMultiOption" : "__corvex__selectSingleOption"), reference,
               escapeQuoteWithBackslash(text));
  const JavaScriptAnswer answer = evaluateJS(deferredCode(statement));
  if (!answer.succeeded()) {
    return QStringLiteral("Failed to select option text '%1': %2").arg(text, answer.text);
  }
  gentleSleep(settleTimeMs);
  return QString();
}

FunctionCallResult<QString> HTML_Select::selectedOption() const {
  using Result = FunctionCallResult<QString>;
  const JavaScriptAnswer answer =
      evaluateJS(QStringLiteral("%1.options[%2.selectedIndex].text;").arg(reference, reference));
  return answer.succeeded() ? Result::success(answer.text)
                            : Result::failure(QStringLiteral("Error fetching selected option: %1").arg(answer.text));
}

FunctionCallResult<HTML_Array*> HTML_Select::options() {
  using Result = FunctionCallResult<HTML_Array*>;
  const FunctionCallResult<HTML_Object*> result =
      htmlObjectFromJavaScriptResult(component, reference + QLatin1String(".options"), QString(), 0);
  // The page does not tell such a list from other objects.
  const std::unique_ptr<HTML_Object> list(result.value);
  if (!list) {
    const QString reason = result.failed() ? result.error : QStringLiteral("the element has none");
    return Result::failure(QStringLiteral("Error loading options: %1").arg(reason));
  }
  return Result::success(new HTML_Array(QString(), list->reference, component));
}

FunctionCallResult<HTML_Option*> HTML_Select::optionAt(int index) {
  const FunctionCallResult<HTML_Array*> list = options();
  const std::unique_ptr<HTML_Array> owned(list.value);
  if (!owned) {
    return FunctionCallResult<HTML_Option*>::failure(list.error);
  }
  const FunctionCallResult<HTML_Object*> element = owned->at(index);
  return {castOrDelete<HTML_Option>(element.value), element.error};
}

FunctionCallResult<std::vector<int>> HTML_Select::selectedIndexes() const {
  return readList<int>(this, "selectedIndexes", "selected indexes", Json::intValue, &Json::Value::isInt, readInt);
}

FunctionCallResult<std::vector<std::string>> HTML_Select::selectedList(const char* function, const char* what) const {
  return readList<std::string>(this, function, what, Json::stringValue, &Json::Value::isString, readText);
}

FunctionCallResult<std::vector<std::string>> HTML_Select::selectedLabels() const {
  return selectedList("selectedLabels", "selected labels");
}

FunctionCallResult<std::vector<std::string>> HTML_Select::selectedTexts() const {
  return selectedList("selectedTexts", "selected texts");
}

FunctionCallResult<std::vector<std::string>> HTML_Select::selectedValues() const {
  return selectedList("selectedValues", "selected values");
}

QString HTML_Select::selectOptions(const QStringList& values, const char* accessor) {
  const QString error = focus();
  if (!error.isEmpty()) {
    return error;
  }
  const QString shown = values.join(QLatin1String(", "));
  const QString quoted = quotedArrayElements(values);
  const QString reader = QString::fromLatin1(accessor);
  const JavaScriptAnswer found = evaluateJS(
      QStringLiteral("__corvex__standardselectExtension.hasItems(%1, [%2], %3);").arg(reference, quoted, reader));
  if (!found.succeeded()) {
    return QStringLiteral("Error while checking if options '%1' are available: %2").arg(shown, found.text);
  }
  if (found.text != QLatin1String("true")) {
    return QStringLiteral("Failed to find one of the items '%1' to select: true != %2").arg(shown, found.text);
  }
  if (!multiple && values.size() > 1) {
    return QStringLiteral("Incorrect number of values for a single-select field, only one value expected but got: %1")
        .arg(shown);
  }
  const char* const call =
      values.size() == 1 ? "__corvex__selectOption( %1, %2, %3 );" : "__corvex__selectOptions( %1, [%2], %3 );";
  const JavaScriptAnswer answer = evaluateJS(deferredCode(QString::fromLatin1(call).arg(reference, quoted, reader)));
  return answer.succeeded() ? QString()
                            : QStringLiteral("Error while selecting options '%1': %2").arg(shown, answer.text);
}

QString HTML_Select::setSelectedOptions(const QStringList& texts) { return selectOptions(texts, textOfOption); }

QString HTML_Select::setSelectedOptionsByText(const QStringList& texts) { return selectOptions(texts, textOfOption); }

QString HTML_Select::setSelectedOptionsByValue(const QStringList& values) {
  return selectOptions(values, valueOfOption);
}

QString HTML_Select::setSelectedOptionByValue(const QString& value) {
  return selectOptions(QStringList(value), valueOfOption);
}

QString HTML_Select::setSelectedOptionsByIndexes(const QStringList& indexes) {
  return selectOptions(indexes, indexOfOption);
}

QString HTML_Select::deselectOptions(const QStringList& values, const char* accessor) {
  const QString error = focus();
  if (!error.isEmpty()) {
    return error;
  }
  const QString expression = QStringLiteral("__corvex__standardselectExtension.deselect( %1, %2, [%3] )")
                                 .arg(reference, QLatin1String(accessor), quotedArrayElements(values));
  const FunctionCallResult<Json::Value> answer = callJavaScriptFunction(component, expression, 0);
  return answer.failed()
             ? QStringLiteral("Error deselecting values '%1': %2").arg(values.join(QLatin1String(", ")), answer.error)
             : QString();
}

QString HTML_Select::deselectByIndexes(const QStringList& indexes) { return deselectOptions(indexes, indexOfOption); }

QString HTML_Select::deselectByTexts(const QStringList& texts) {
  return deselectOptions(texts, "__corvex__standardselectExtension.optionText");
}

QString HTML_Select::deselectByValues(const QStringList& values) {
  return deselectOptions(values, "__corvex__standardselectExtension.optionValue");
}

namespace {

constexpr PropertyRow properties[] = {
    property<&HTML_Select::selectedIndex, &HTML_Select::setSelectedIndex>("selectedIndex"),
    property<&HTML_Select::selectedIndexes, &HTML_Select::setSelectedOptionsByIndexes>("selectedIndexes"),
    property<&HTML_Select::selectedLabels, &HTML_Select::setSelectedOptions>("selectedLabels"),
    property<&HTML_Select::selectedOption, &HTML_Select::setSelectedOption>("selectedOption"),
    property<&HTML_Select::selectedTexts, &HTML_Select::setSelectedOptionsByText>("selectedTexts"),
    property<&HTML_Select::selectedValues, &HTML_Select::setSelectedOptionsByValue>("selectedValues"),
};

constexpr MethodRow methods[] = {
    method<&HTML_Select::deselectByIndexes>("deselectByIndexes", "indexes"),
    method<&HTML_Select::deselectByTexts>("deselectByTexts", "texts"),
    method<&HTML_Select::deselectByValues>("deselectByValues", "values"),
    method<&HTML_Select::isMulti>("isMulti"),
    method<&HTML_Select::optionAt>("optionAt", "index"),
    method<&HTML_Select::options>("options"),
    method<&HTML_Select::selectedIndex>("selectedIndex"),
    method<&HTML_Select::selectedOption>("selectedOption"),
    method<&HTML_Select::setSelectedIndex>("setSelectedIndex", "index"),
    method<&HTML_Select::setSelectedOption>("setSelectedOption", "text"),
    method<&HTML_Select::setSelectedOptionByValue>("setSelectedOptionByValue", "value"),
    method<&HTML_Select::setSelectedOptionsByText>("setSelectedOptionsByText", "texts"),
    method<&HTML_Select::setSelectedOptionsByValue>("setSelectedOptionsByValue", "values"),
};

}  // namespace

const ClassMembers HTML_Select_Class = classMembers(properties, methods);

}  // namespace Corvex::WebWrapper
