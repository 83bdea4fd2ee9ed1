#include "scripting/functions/checks.h"

#include <algorithm>
#include <limits>

#include "scripting/functions/globalfunctions.h"
#include "scripting/objects/valuecomparison.h"
#include "scripting/objects/valuetext.h"

namespace Corvex::Scripting {

namespace {

/// What a script says about a check, at this place of the arguments; empty when it says nothing.
QString messageOf(const QJSValueList& arguments, int index) {
  const QJSValue message = arguments.value(index);
  return message.isUndefined() ? QString() : message.toString();
}

}  // namespace

const std::vector<Checks::Row>& Checks::rows() {
  static const std::vector<Row> table = {
      {"test.verify", "test.verify(condition[, message])", 1, 2, &Checks::verify},
      {"test.compare", "test.compare(actual, expected[, message])", 2, 3, &Checks::compare},
      {"test.log", "test.log(text, ...)", 0, std::numeric_limits<int>::max(), &Checks::log},
  };
  return table;
}

QStringList Checks::names() {
  QStringList names;
  for (const Row& row : rows()) {
    names << QString::fromLatin1(row.name);
  }
  return names;
}

Checks::Answer Checks::call(const QString& name, const QJSValueList& arguments, const ScriptTrace& trace) {
  const auto row = std::find_if(rows().begin(), rows().end(),
                                [&name](const Row& candidate) { return name == QLatin1String(candidate.name); });
  const QString error =
      countError(name, QString::fromLatin1(row->usage), row->minArguments, row->maxArguments, arguments.size());
  return error.isEmpty() ? (this->*row->run)({arguments, trace}) : Answer::failure(error);
}

Checks::Answer Checks::verify(const Call& call) {
  const bool holds = call.arguments.at(0).toBool();
  const QString message = messageOf(call.arguments, 1);
  const QString text = message.isEmpty() ? QStringLiteral("the condition") : message;
  return checked(holds, holds ? text : text + QLatin1String(" does not hold"), call.trace);
}

Checks::Answer Checks::compare(const Call& call) {
  const QJSValue& actual = call.arguments.at(0);
  const QJSValue& expected = call.arguments.at(1);
  const FunctionCallResult<bool> equal = equalValues(m_values, actual, expected);
  if (equal.failed()) {
    return Answer::failure(equal.error);
  }
  const QString shown = valueText(m_values, actual);
  const QString text = equal.value
                           ? QStringLiteral("got %1 as expected").arg(shown)
                           : QStringLiteral("got %1, but expected %2").arg(shown, valueText(m_values, expected));
  const QString message = messageOf(call.arguments, 2);
  return checked(equal.value, message.isEmpty() ? text : message + QLatin1String(": ") + text, call.trace);
}

Checks::Answer Checks::log(const Call& call) {
  QStringList texts;
  for (const QJSValue& argument : call.arguments) {
    texts << argument.toString();
  }
  m_listener->log(texts.join(QLatin1Char(' ')));
  return Answer::success(QJSValue());
}

Checks::Answer Checks::checked(bool passed, const QString& text, const ScriptTrace& trace) {
  if (passed) {
    ++m_result->checksPassed;
  } else {
    m_result->failedChecks.push_back({text, trace});
  }
  m_listener->check(passed, text, trace);
  return Answer::success(QJSValue(passed));
}

}  // namespace Corvex::Scripting
