#include "webhook/run/typing.h"

#include "corvexhook/inspector.h"
#include "shared/wait.h"
#include "webhook/pages/connection.h"
#include "webhook/run/actiontarget.h"
#include "webhook/run/keytext.h"
#include "wrappers/web/object/webobject.h"
#include "wrappers/web/page/escaping.h"

namespace Corvex::Webhook {

namespace {

const int kindIntervalMs = 20;

InputSteps stepsFor(const QVector<KeyTextPart>& parts) {
  InputSteps steps;
  for (const KeyTextPart& part : parts) {
    steps += part.combination.isEmpty() ? stepsForText(part.text) : stepsForCombination(part.combination);
  }
  return steps;
}

InputSteps combination(const char* first, const QString& second) {
  return stepsForCombination({*keyNamed(QLatin1String(first)), keyFor(second)});
}

InputSteps singleKey(const char* name) { return stepsForCombination({*keyNamed(QLatin1String(name))}); }

/// The text at once, without keys.
InputSteps insertion(const QString& text) {
  InputStep step;
  step.kind = InputStep::Insert;
  step.text = text;
  return {step};
}

InputSteps click(const QPointF& point) {
  InputSteps steps(3);
  for (InputStep& step : steps) {
    step.position = point;
  }
  steps[1].kind = InputStep::Press;
  steps[2].kind = InputStep::Release;
  return steps;
}

QString chooseValue(ActionTarget& target, const QString& value) {
  const QString code = QStringLiteral("__corvex__chooseValue(%1, '") + WebWrapper::escapeForUseAsStringLiteral(value) +
                       QStringLiteral("')");
  const JavaScriptAnswer answer = target.ask(code);
  if (!answer.succeeded()) {
    return answer.text;
  }
  return answer.text.isEmpty()
             ? QString()
             : target.failure(QStringLiteral("it does not take the value '%1'; dates are written as 2024-02-29, times "
                                             "as 13:45, months as 2024-02, weeks as 2024-W09, colours as #ff8800")
                                  .arg(value));
}

/// How an element takes text. One that is read-only gets the time to change.
JavaScriptAnswer kindOf(const ActionTarget& target) {
  JavaScriptAnswer kind;
  poll(target.remainingMs(), kindIntervalMs, [&] {
    kind = target.ask(QStringLiteral("__corvex__typingKind(%1)"));
    return !kind.succeeded() || kind.text != QLatin1String("readonly") || !Inspector::self()->whyNotGoOn().isEmpty();
  });
  return kind;
}

/// Clicks into a field, unless it has the focus, and tells how what has it then takes text.
QString focus(ActionTarget& target, bool selectsAll, QString* kind) {
  const QString isWhole = selectsAll ? QStringLiteral("true") : QStringLiteral("false");
  const auto ask = [&](bool isClicked) {
    const JavaScriptAnswer answer =
        target.ask(QStringLiteral("__corvex__typingField(%1, ") +
                   (isClicked ? QStringLiteral("true, ") : QStringLiteral("false, ")) + isWhole + QLatin1Char(')'));
    *kind = answer.succeeded() ? answer.text : QString();
    return answer.succeeded() ? QString() : answer.text;
  };
  const bool isCatcher = target.ask(QStringLiteral("__corvex__isKeyCatcher(%1)")).text == QLatin1String("true");
  const bool hasFocus = target.ask(QStringLiteral("__corvex__focusedField(%1, false)")).text == QLatin1String("field");
  if (isCatcher || hasFocus) {
    return ask(false);
  }
  const QString error =
      target.reach({}, true, [&target](const QPointF& point) { return target.perform(click(point)); });
  return error.isEmpty() ? ask(true) : error;
}

}  // namespace

QString Typing::typeText(const SharedPtr<Object>& object, const QString& text) const { return put(object, text, true); }

QString Typing::setText(const SharedPtr<Object>& object, const QString& text) const { return put(object, text, false); }

QString Typing::pressKeys(Connection& page, const QString& text) {
  const QString error = page.perform(stepsFor(parseKeyText(text)));
  page.awaitOutcome();
  return error;
}

QString Typing::put(const SharedPtr<Object>& object, const QString& text, bool hasKeys) const {
  ActionTarget target(object, "given text", m_isStrict);
  const QString error = target.find();
  if (!error.isEmpty()) {
    return error;
  }
  const JavaScriptAnswer kind = kindOf(target);
  if (!kind.succeeded()) {
    return kind.text;
  }
  if (kind.text == QLatin1String("readonly")) {
    return target.failure(QStringLiteral("it is read-only"));
  }
  if (kind.text == QLatin1String("value")) {
    return chooseValue(target, text);
  }
  if (kind.text == QLatin1String("file")) {
    return target.connection().page()->setFiles(target.element().reference, {text});
  }
  return type(target, text, hasKeys);
}

QString Typing::type(ActionTarget& target, const QString& text, bool hasKeys) const {
  const QVector<KeyTextPart> parts = hasKeys ? parseKeyText(text) : QVector<KeyTextPart>{{text, {}}};
  const bool replaces = parts.isEmpty() || parts.first().combination.isEmpty();
  QString kind;
  const QString error = focus(target, replaces, &kind);
  if (!error.isEmpty()) {
    return error;
  }
  if (target.needsPage()) {
    const QString code = QStringLiteral("__corvex__setTextFieldValue(%1, '");
    const JavaScriptAnswer answer =
        target.ask(code + WebWrapper::escapeForUseAsStringLiteral(text) + QStringLiteral("')"));
    return answer.succeeded() ? QString() : answer.text;
  }
  if (kind.isEmpty() || kind == QLatin1String("readonly")) {
    return target.failure(kind.isEmpty() ? QStringLiteral("it takes no text") : QStringLiteral("it is read-only"));
  }
  InputSteps steps;
  if (replaces && kind == QLatin1String("editor")) {
    steps += combination("Ctrl", QStringLiteral("a"));
  }
  steps += text.isEmpty() ? singleKey("Delete") : hasKeys ? stepsFor(parts) : insertion(text);
  const bool isChecked = parts.size() == 1 && replaces;
  if (isChecked) {
    target.ask(QStringLiteral("__corvex__typingCheck.begin()"));
  }
  const QString failed = target.perform(steps);
  target.connection().awaitOutcome();
  if (!failed.isEmpty() || !isChecked || !target.connection().isAvailable()) {
    return failed;
  }
  return target.ask(QStringLiteral("__corvex__typingCheck.end()")).text == QLatin1String("false")
             ? target.failure(QStringLiteral("it took nothing of the text"))
             : QString();
}

}  // namespace Corvex::Webhook
