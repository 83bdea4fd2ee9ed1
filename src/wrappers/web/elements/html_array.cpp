#include "wrappers/web/elements/html_array.h"

#include "wrappers/web/glue/scriptclass.h"
#include "wrappers/web/object/retrievehtmlobject.h"

namespace Corvex::WebWrapper {

const char* HTML_Array::className() const { return ScriptName; }

FunctionCallResult<int> HTML_Array::length() const {
  return integerProperty("length", "Could not convert length of array '%1' to number");
}

FunctionCallResult<HTML_Object*> HTML_Array::at(int index) {
  using Result = FunctionCallResult<HTML_Object*>;
  const QString number = QString::number(index);
  const FunctionCallResult<int> size = length();
  if (size.failed()) {
    return Result::failure(
        QStringLiteral("Cannot retrieve element at '%1', length check failed: %2").arg(number, size.error));
  }
  if (index < 0 || index >= size.value) {
    return Result::failure(QStringLiteral("Out of bounds access to array of length %1 with index %2.")
                               .arg(QString::number(size.value), number));
  }
  const Result element =
      htmlObjectFromJavaScriptResult(component, QStringLiteral("%1[%2];").arg(reference, number), QString(), 0);
  return element.failed()
             ? Result::failure(
                   QStringLiteral("Could not get reference for array element at '%1': %2").arg(number, element.error))
             : element;
}

namespace {

constexpr PropertyRow properties[] = {
    property<&HTML_Array::length>("length"),
};

constexpr MethodRow methods[] = {
    method<&HTML_Array::at>("at", "index"),
    method<&HTML_Array::length>("length"),
};

}  // namespace

const ClassMembers HTML_Array_Class = classMembers(properties, methods);

}  // namespace Corvex::WebWrapper
