#include "wrappers/web/widgets/html_datechooser.h"

#include "wrappers/web/glue/scriptclass.h"
#include "wrappers/web/widgets/datetext.h"

namespace Corvex::WebWrapper {

FunctionCallResult<DateTime> HTML_DateChooser::date() const {
  const JavaScriptAnswer answer = evaluateJS(getDateCommand(QStringLiteral("getDate"), reference, extension));
  return withPrefix(QStringLiteral("Error obtaining date: "),
                    answer.succeeded() ? parseDate(answer.text) : FunctionCallResult<DateTime>::failure(answer.text));
}

QString HTML_DateChooser::setDate(const DateTime& date) {
  const QString sentence = QStringLiteral("Error setting date '%1': %2");
  if (!date.value().isValid()) {
    return sentence.arg(QStringLiteral("invalid"), QStringLiteral("This is no date."));
  }
  const JavaScriptAnswer answer =
      evaluateJS(QStringLiteral("%1.setDate( %2, %3);").arg(extensionObject(), reference, serializeDateToJSDate(date)));
  return answer.succeeded() ? QString() : sentence.arg(dateInWords(date), answer.text);
}

namespace {

constexpr PropertyRow properties[] = {
    property<&HTML_DateChooser::date, &HTML_DateChooser::setDate>("date"),
};

constexpr MethodRow methods[] = {
    method<&HTML_DateChooser::date>("date"),
    method<&HTML_DateChooser::setDate>("setDate", "date"),
};

}  // namespace

const ClassMembers HTML_DateChooser_Class = classMembers(properties, methods);

}  // namespace Corvex::WebWrapper
