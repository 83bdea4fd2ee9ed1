#include "webhook/protocol/bidi/bidiinput.h"

#include <QJsonArray>
#include <QtMath>

namespace Corvex::Webhook::Bidi {

namespace {

enum Device { Mouse, Wheel, Keyboard };

struct DeviceRow {
  const char* type;
  const char* id;
};

const DeviceRow deviceRows[] = {{"pointer", "mouse"}, {"wheel", "wheel"}, {"key", "keyboard"}};

Device deviceOf(const InputStep& step) {
  return step.kind == InputStep::Wheel ? Wheel : step.kind < InputStep::Wheel ? Mouse : Keyboard;
}

QJsonObject pause() { return {{QStringLiteral("type"), QStringLiteral("pause")}}; }

QJsonObject placed(const char* type, const QPointF& position) {
  return {{QStringLiteral("type"), QLatin1String(type)},
          {QStringLiteral("x"), position.x()},
          {QStringLiteral("y"), position.y()}};
}

QJsonObject action(const InputStep& step) {
  switch (step.kind) {
    case InputStep::Move:
      return placed("pointerMove", step.position);
    case InputStep::Press:
    case InputStep::Release:
      return {{QStringLiteral("type"),
               step.kind == InputStep::Press ? QStringLiteral("pointerDown") : QStringLiteral("pointerUp")},
              {QStringLiteral("button"), static_cast<int>(step.button)}};
    case InputStep::Wheel: {
      // Whole pixels are all that it takes.
      QJsonObject wheel = placed("scroll", {std::floor(step.position.x()), std::floor(step.position.y())});
      wheel.insert(QStringLiteral("deltaX"), qRound(step.scroll.x()));
      wheel.insert(QStringLiteral("deltaY"), qRound(step.scroll.y()));
      return wheel;
    }
    case InputStep::KeyDown:
    case InputStep::KeyUp:
      return {{QStringLiteral("type"),
               step.kind == InputStep::KeyDown ? QStringLiteral("keyDown") : QStringLiteral("keyUp")},
              {QStringLiteral("value"), step.key.webDriver}};
    case InputStep::Insert:
      break;
  }
  return pause();
}

}  // namespace

// Firefox takes no press of a button that is held since before the document came.
InputSteps InputWriter::withReleases(const InputSteps& steps) {
  InputSteps all;
  for (const InputStep& step : steps) {
    const bool isPress = step.kind == InputStep::Press;
    if (isPress && m_held.contains(step.button)) {
      all.append(step);
      all.last().kind = InputStep::Release;
    }
    if (isPress || step.kind == InputStep::Release) {
      m_held.removeAll(step.button);
    }
    if (isPress) {
      m_held.append(step.button);
    }
    all.append(step);
  }
  return all;
}

Command InputWriter::write(const QString& page, const InputSteps& given) {
  const InputSteps steps = withReleases(given);
  QJsonArray actions[3];
  bool isUsed[3] = {};
  for (const InputStep& step : steps) {
    isUsed[deviceOf(step)] = true;
  }
  for (const InputStep& step : steps) {
    for (int device = Mouse; device <= Keyboard; ++device) {
      actions[device].append(deviceOf(step) == device ? action(step) : pause());
    }
  }
  QJsonArray devices;
  for (int device = Mouse; device <= Keyboard; ++device) {
    if (isUsed[device]) {
      devices.append(QJsonObject{{QStringLiteral("type"), QLatin1String(deviceRows[device].type)},
                                 {QStringLiteral("id"), QLatin1String(deviceRows[device].id)},
                                 {QStringLiteral("actions"), actions[device]}});
    }
  }
  return {QStringLiteral("input.performActions"),
          {{QStringLiteral("context"), page}, {QStringLiteral("actions"), devices}}};
}

}  // namespace Corvex::Webhook::Bidi
