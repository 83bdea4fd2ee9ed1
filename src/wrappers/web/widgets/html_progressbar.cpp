#include "wrappers/web/widgets/html_progressbar.h"

#include "wrappers/web/glue/scriptclass.h"

namespace Corvex::WebWrapper {

FunctionCallResult<int> HTML_ProgressBar::value() const {
  return numberOf(evaluateJS(extensionCall("getValue")), "Error while fetching value: %1",
                  "Error: cannot convert '%1' into value number");
}

FunctionCallResult<int> HTML_ProgressBar::minimum() const {
  return numberOf(evaluateJS(extensionCall("getMinimum")), "Error while fetching minimum: %1",
                  "Error: cannot convert '%1' into minimum number");
}

FunctionCallResult<int> HTML_ProgressBar::maximum() const {
  return numberOf(evaluateJS(extensionCall("getMaximum")), "Error while fetching maximum: %1",
                  "Error: cannot convert '%1' into maximum number");
}

QString HTML_ProgressBar::setValue(int value) {
  const QString text = QString::number(value);
  const JavaScriptAnswer answer =
      evaluateJS(QStringLiteral("%1.setValue(%2, '%3');").arg(extensionObject(), reference, text));
  return answer.succeeded() ? QString() : QStringLiteral("Error setting value to  '%1': %2").arg(text, answer.text);
}

namespace {

constexpr PropertyRow properties[] = {
    property<&HTML_ProgressBar::maximum>("maximum"),
    property<&HTML_ProgressBar::minimum>("minimum"),
    property<&HTML_ProgressBar::value, &HTML_ProgressBar::setValue>("value"),
};

constexpr MethodRow methods[] = {
    method<&HTML_ProgressBar::maximum>("maximum"),
    method<&HTML_ProgressBar::minimum>("minimum"),
    method<&HTML_ProgressBar::setValue>("setValue", "value"),
    method<&HTML_ProgressBar::value>("value"),
};

}  // namespace

const ClassMembers HTML_ProgressBar_Class = classMembers(properties, methods);

}  // namespace Corvex::WebWrapper
