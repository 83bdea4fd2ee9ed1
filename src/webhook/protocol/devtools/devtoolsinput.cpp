#include "webhook/protocol/devtools/devtoolsinput.h"

namespace Corvex::Webhook::DevTools {

namespace {

struct ButtonRow {
  PointerButton button;
  const char* name;
  int bit;
};

const ButtonRow buttonRows[] = {
    {PointerButton::Left, "left", 1}, {PointerButton::Middle, "middle", 4}, {PointerButton::Right, "right", 2}};

const ButtonRow& rowOf(PointerButton button) { return buttonRows[static_cast<int>(button)]; }

/// While a button is held, moves name the one that began it.
QString heldButton(int buttons) {
  for (const ButtonRow& row : buttonRows) {
    if (buttons & row.bit) {
      return QLatin1String(row.name);
    }
  }
  return QStringLiteral("none");
}

}  // namespace

QVector<Command> InputWriter::write(const InputSteps& steps) {
  QVector<Command> commands;
  for (const InputStep& step : steps) {
    commands.append(write(step));
  }
  return commands;
}

Command InputWriter::write(const InputStep& step) {
  switch (step.kind) {
    case InputStep::Move:
      return pointer("mouseMoved", step);
    case InputStep::Press:
      m_buttons |= rowOf(step.button).bit;
      return pointer("mousePressed", step);
    case InputStep::Release:
      m_buttons &= ~rowOf(step.button).bit;
      return pointer("mouseReleased", step);
    case InputStep::Wheel:
      return pointer("mouseWheel", step);
    case InputStep::KeyDown:
    case InputStep::KeyUp:
      return key(step);
    case InputStep::Insert:
      break;
  }
  return {QStringLiteral("Input.insertText"), {{QStringLiteral("text"), step.text}}};
}

Command InputWriter::pointer(const char* type, const InputStep& step) {
  const bool isButton = step.kind == InputStep::Press || step.kind == InputStep::Release;
  QJsonObject parameters{
      {QStringLiteral("type"), QLatin1String(type)},
      {QStringLiteral("x"), step.position.x()},
      {QStringLiteral("y"), step.position.y()},
      {QStringLiteral("modifiers"), m_modifiers},
      {QStringLiteral("button"), isButton ? QString::fromLatin1(rowOf(step.button).name) : heldButton(m_buttons)},
      {QStringLiteral("buttons"), m_buttons}};
  if (isButton) {
    parameters.insert(QStringLiteral("clickCount"), step.clicks);
  }
  if (step.kind == InputStep::Wheel) {
    parameters.insert(QStringLiteral("deltaX"), step.scroll.x());
    parameters.insert(QStringLiteral("deltaY"), step.scroll.y());
  }
  return {QStringLiteral("Input.dispatchMouseEvent"), parameters};
}

Command InputWriter::key(const InputStep& step) {
  const Key& key = step.key;
  const bool isDown = step.kind == InputStep::KeyDown;
  m_modifiers = isDown ? m_modifiers | key.modifier : m_modifiers & ~key.modifier;
  const bool types = isDown && !key.text.isEmpty() && !(m_modifiers & ~ShiftHeld);
  const char* const type = !isDown ? "keyUp" : types ? "keyDown" : "rawKeyDown";
  QJsonObject parameters{{QStringLiteral("type"), QLatin1String(type)},
                         {QStringLiteral("modifiers"), m_modifiers},
                         {QStringLiteral("key"), key.key},
                         {QStringLiteral("code"), key.code},
                         {QStringLiteral("windowsVirtualKeyCode"), key.keyCode},
                         {QStringLiteral("location"), key.modifier ? 1 : 0}};
  if (types) {
    parameters.insert(QStringLiteral("text"), key.text);
    parameters.insert(QStringLiteral("unmodifiedText"), key.text);
  }
  return {QStringLiteral("Input.dispatchKeyEvent"), parameters};
}

}  // namespace Corvex::Webhook::DevTools
