#include "scripting/functions/checks.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "scripting/functions/expectedpicture.h"
#include "scripting/functions/globalfunctions.h"
#include "scripting/functions/targets.h"
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
      {"test.compareScreenshot", "test.compareScreenshot(object, file[, share])", 2, 3, &Checks::compareScreenshot},
      {"test.fail", "test.fail([message])", 0, 1, &Checks::fail},
      {"test.skip", "test.skip([reason])", 0, 1, &Checks::skip},
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
  const FunctionCallResult<Difference> difference = firstDifference(m_context.values, actual, expected);
  if (difference.failed()) {
    return Answer::failure(difference.error);
  }
  const Comparison compared = {valueText(m_context.values, actual), valueText(m_context.values, expected)};
  QString text = difference.value.isNone
                     ? QStringLiteral("got %1 as expected").arg(compared.actual)
                     : QStringLiteral("got %1, but expected %2").arg(compared.actual, compared.expected);
  if (!difference.value.path.isEmpty()) {
    text += QStringLiteral("; they differ at %1: %2").arg(difference.value.path, difference.value.text);
  }
  const QString message = messageOf(call.arguments, 2);
  text = message.isEmpty() ? text : message + QLatin1String(": ") + text;
  return Answer::success(QJSValue(note({difference.value.isNone, text, call.trace, compared})));
}

Checks::Answer Checks::compareScreenshot(const Call& call) {
  const QJSValue share = call.arguments.value(2);
  if (!share.isUndefined() && !(share.isNumber() && share.toNumber() >= 0 && share.toNumber() <= 1)) {
    return Answer::failure(
        QStringLiteral("test.compareScreenshot: the share of pixels that may differ is a number from 0 to 1, not %1.")
            .arg(valueText(m_context.values, share)));
  }
  const ExpectedPicture expected(m_context.folder, call.arguments.at(1).toString());
  const QString why = expected.whyNotUsable();
  if (!why.isEmpty()) {
    return Answer::failure(why);
  }
  const FunctionCallResult<QImage> actual = pictureOf(call.arguments.at(0));
  if (actual.failed()) {
    return Answer::failure(actual.error);
  }
  const FunctionCallResult<PictureVerdict> verdict =
      expected.compareWith(actual.value, share.isUndefined() ? 0 : share.toNumber());
  return verdict.failed() ? Answer::failure(verdict.error)
                          : checked(verdict.value.passed, verdict.value.text, call.trace);
}

FunctionCallResult<QImage> Checks::pictureOf(const QJSValue& object) const {
  using Result = FunctionCallResult<QImage>;
  const ObjectResult argument = m_context.values.fromScript(object);
  const FunctionCall call = {"test.compareScreenshot", m_context.functions, {}};
  const Target target =
      argument.failed() ? Target{nullptr, QString(), argument.error} : awaitedTarget(call, argument.value);
  if (!target.error.isEmpty()) {
    return Result::failure(target.error);
  }
  return m_context.pictureOf ? m_context.pictureOf(target.object)
                             : Result::failure(QStringLiteral("There are no pictures of objects here."));
}

Checks::Answer Checks::fail(const Call& call) {
  const QString message = messageOf(call.arguments, 0);
  return checked(false, message.isEmpty() ? QStringLiteral("the script calls this a failure") : message, call.trace);
}

Checks::Answer Checks::skip(const Call& call) {
  m_outcome->isSkipped = true;
  m_outcome->skipReason = messageOf(call.arguments, 0);
  m_hasSkipped = true;
  m_context.endCode();
  return Answer::success(QJSValue());
}

Checks::Answer Checks::log(const Call& call) {
  QStringList texts;
  for (const QJSValue& argument : call.arguments) {
    texts << argument.toString();
  }
  m_context.listener->log(texts.join(QLatin1Char(' ')));
  return Answer::success(QJSValue());
}

bool Checks::note(const Check& check) {
  if (check.passed) {
    ++m_outcome->checksPassed;
  } else {
    QStringList titles;
    for (const Group& group : m_groups) {
      titles << group.title;
    }
    m_outcome->failedChecks.push_back({check.text, check.trace, titles});
  }
  m_context.listener->check(check);
  if (!check.passed) {
    m_context.onFailure();
  }
  return check.passed;
}

void Checks::beginGroup(const QString& title) {
  Group group{title, {}};
  group.timer.start();
  m_groups.push_back(group);
  m_context.listener->groupStarted(title);
}

void Checks::endGroup(const QString& error) {
  const Group group = m_groups.back();
  m_groups.pop_back();
  m_context.listener->groupFinished(group.title, error, group.timer.elapsed());
}

void Checks::closeGroups() {
  while (!m_groups.empty()) {
    endGroup(QString());
  }
}

bool Checks::takeSkip() { return std::exchange(m_hasSkipped, false); }

}  // namespace Corvex::Scripting
