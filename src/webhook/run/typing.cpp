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

const int stateIntervalMs = 20;

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

struct Field {
  QString kind;           ///< How it takes text; see the page's typingState.
  bool hasFocus = false;  ///< Nobody would click it before typing.
  QString error;
};

/// A field that is read-only gets the time to change, and one that moves the time to stand still.
Field fieldOf(const ActionTarget& target) {
  Field field;
  poll(target.remainingMs(), stateIntervalMs, [&] {
    const JavaScriptAnswer answer = target.ask(QStringLiteral("__corvex__typingState(%1)"));
    const QStringList words = answer.text.split(QLatin1Char(' '));
    field = {words.value(0), words.value(1) == QLatin1String("focus"), answer.succeeded() ? QString() : answer.text};
    return (field.kind != QLatin1String("readonly") && field.kind != QLatin1String("moving")) ||
           !field.error.isEmpty() || !Inspector::self()->whyNotGoOn().isEmpty();
  });
  return field;
}

/// Sees to it that the field, or the part of it that takes keys, has the focus, and tells how that takes text. Then the
/// page watches whether it takes any.
QString focus(ActionTarget& target, const Field& field, bool selectsAll, QString* kind) {
  const QString error =
      field.hasFocus ? QString()
                     : target.reach({}, true, [&target](const QPointF& point) { return target.perform(click(point)); });
  if (!error.isEmpty() || target.needsPage()) {
    return error;
  }
  const auto truth = [](bool is) { return is ? QStringLiteral("true") : QStringLiteral("false"); };
  const JavaScriptAnswer answer = target.ask(QStringLiteral("__corvex__typingField(%1, ") + truth(!field.hasFocus) +
                                             QStringLiteral(", ") + truth(selectsAll) + QLatin1Char(')'));
  *kind = answer.succeeded() ? answer.text : QString();
  return answer.succeeded() ? QString() : answer.text;
}

/// An editor may indent and close brackets of what is typed, and takes what is pasted as it is.
QString pasteIntoEditor(const ActionTarget& target, const InputSteps& selection, const QString& text) {
  const QString failed = target.perform(selection);
  const JavaScriptAnswer pasted = failed.isEmpty()
                                      ? target.ask(QStringLiteral("__corvex__pasteText('") +
                                                   WebWrapper::escapeForUseAsStringLiteral(text) + QStringLiteral("')"))
                                      : JavaScriptAnswer();
  if (!failed.isEmpty() || !pasted.succeeded() || pasted.text == QLatin1String("true")) {
    return failed.isEmpty() && !pasted.succeeded() ? pasted.text : failed;
  }
  const QString error = target.perform(insertion(text));
  const bool tookNothing =
      error.isEmpty() && target.ask(QStringLiteral("__corvex__typingCheck.end()")).text == QLatin1String("false");
  return tookNothing ? target.failure(QStringLiteral("it took nothing of the text")) : error;
}

/// Types into what takes keys.
QString type(ActionTarget& target, const Field& field, const QString& text, bool hasKeys) {
  const QVector<KeyTextPart> parts = hasKeys ? parseKeyText(text) : QVector<KeyTextPart>{{text, {}}};
  const bool replaces = parts.isEmpty() || parts.first().combination.isEmpty();
  QString kind;
  const QString error = focus(target, field, replaces, &kind);
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
  if (kind == QLatin1String("editor") && !hasKeys && !text.isEmpty()) {
    return pasteIntoEditor(target, steps, text);
  }
  steps += text.isEmpty() ? singleKey("Delete") : hasKeys ? stepsFor(parts) : insertion(text);
  const QString failed = target.perform(steps);
  if (!failed.isEmpty() || !target.connection().isAvailable()) {
    return failed;
  }
  const bool tookNothing = target.ask(QStringLiteral("__corvex__typingCheck.end()")).text == QLatin1String("false");
  target.connection().awaitNavigation();
  const bool hasToTake = parts.size() == 1 && replaces && !text.isEmpty();
  return tookNothing && hasToTake ? target.failure(QStringLiteral("it took nothing of the text")) : QString();
}

}  // namespace

QString Typing::typeText(const SharedPtr<Object>& object, const QString& text) const { return put(object, text, true); }

QString Typing::setText(const SharedPtr<Object>& object, const QString& text) const { return put(object, text, false); }

QString Typing::pressKeys(Connection& page, const QString& text) {
  const QString error = page.perform(stepsFor(parseKeyText(text)));
  if (page.isAvailable()) {
    page.evaluateInAnyDocument(QStringLiteral("0"), 0);
  }
  page.awaitNavigation();
  return error;
}

QString Typing::put(const SharedPtr<Object>& object, const QString& text, bool hasKeys) const {
  ActionTarget target(object, "given text", m_isStrict);
  const QString error = target.find();
  if (!error.isEmpty()) {
    return error;
  }
  const Field field = fieldOf(target);
  if (!field.error.isEmpty()) {
    return field.error;
  }
  if (field.kind == QLatin1String("readonly")) {
    return target.failure(QStringLiteral("it is read-only"));
  }
  if (field.kind == QLatin1String("moving")) {
    return target.failure(QStringLiteral("it keeps moving"));
  }
  if (field.kind == QLatin1String("none")) {
    return target.failure(QStringLiteral("it takes no text"));
  }
  if (field.kind == QLatin1String("value")) {
    return chooseValue(target, text);
  }
  if (field.kind == QLatin1String("file")) {
    return target.connection().page()->setFiles(target.element().reference, {text});
  }
  return type(target, field, text, hasKeys);
}

}  // namespace Corvex::Webhook
