#include "webhook/run/pointeractions.h"

#include "shared/wait.h"
#include "webhook/pages/connection.h"
#include "webhook/run/actiontarget.h"
#include "webhook/run/keytext.h"
#include "wrappers/web/object/webobject.h"

namespace Corvex::Webhook {

namespace {

struct ButtonRow {
  PointerButton button;
  int value;  ///< In scripts.
};

const ButtonRow buttonRows[] = {{PointerButton::Left, 1}, {PointerButton::Right, 2}, {PointerButton::Middle, 4}};

const QString beginDrag = QStringLiteral("__corvex__dragEmulation.begin(%1)");

int scriptValue(PointerButton button) {
  for (const ButtonRow& row : buttonRows) {
    if (row.button == button) {
      return row.value;
    }
  }
  return 1;
}

InputStep pointerStep(InputStep::Kind kind, const QPointF& position, PointerButton button = PointerButton::Left,
                      int clicks = 1) {
  InputStep step;
  step.kind = kind;
  step.position = position;
  step.button = button;
  step.clicks = clicks;
  return step;
}

/// In the page's own way, for what has no point of its own.
QString clickInPage(WebWrapper::HTML_Object& element, const PointerUse& use, int clicks) {
  const QPointF place = use.place.value_or(QPointF());
  const int x = static_cast<int>(place.x());
  const int y = static_cast<int>(place.y());
  return clicks > 1 ? element.doubleClick(use.modifierState, x, y)
                    : element.click(use.modifierState, x, y, scriptValue(use.button));
}

/// Finds and reaches an object, and gives the browser the steps that `stepsAt` makes of the point.
QString act(ActionTarget& target, const PointerUse& use, bool presses,
            const std::function<InputSteps(const QPointF&)>& stepsAt) {
  const QString error = target.find();
  return !error.isEmpty() ? error : target.reach(use.place, presses, [&](const QPointF& point) {
    return target.perform(withModifiers(use.modifierState, stepsAt(point)));
  });
}

// A frame. No hand is faster, and pages arrange anew what is dragged over in their own time.
const int moveMs = 16;

/// One after the other: of moves that are given at once a page sees the last one only.
QString moveAlong(const ActionTarget& target, const QVector<QPointF>& points) {
  QString error;
  for (int i = 0; i < points.size() && error.isEmpty(); ++i) {
    error = target.perform({pointerStep(InputStep::Move, points.at(i))});
    gentleSleep(moveMs);
  }
  return error;
}

QString noPointError(const ActionTarget& target) {
  return target.failure(QStringLiteral("the browser shows it in a way of its own"));
}

}  // namespace

QString PointerActions::click(const SharedPtr<Object>& object, const PointerUse& use, int clicks) const {
  ActionTarget target(object, "clicked", m_isStrict);
  const QString error = act(target, use, true, [&](const QPointF& point) {
    InputSteps steps{pointerStep(InputStep::Move, point)};
    for (int i = 1; i <= clicks; ++i) {
      steps << pointerStep(InputStep::Press, point, use.button, i)
            << pointerStep(InputStep::Release, point, use.button, i);
    }
    return steps;
  });
  return target.needsPage() ? clickInPage(target.element(), use, clicks) : error;
}

QString PointerActions::hover(const SharedPtr<Object>& object, const PointerUse& use) const {
  ActionTarget target(object, "pointed at", m_isStrict);
  const QString error =
      act(target, use, false, [](const QPointF& point) { return InputSteps{pointerStep(InputStep::Move, point)}; });
  return target.needsPage() ? noPointError(target) : error;
}

QString PointerActions::press(const SharedPtr<Object>& object, const PointerUse& use) const {
  ActionTarget target(object, "pressed", m_isStrict);
  const QString error = act(target, use, true, [&](const QPointF& point) {
    target.ask(beginDrag);
    return InputSteps{pointerStep(InputStep::Move, point), pointerStep(InputStep::Press, point, use.button)};
  });
  return target.needsPage() ? noPointError(target) : error;
}

QString PointerActions::release(const SharedPtr<Object>& object, const PointerUse& use) const {
  ActionTarget target(object, "released", m_isStrict);
  const QString error = act(target, use, false, [&use](const QPointF& point) {
    return InputSteps{pointerStep(InputStep::Move, point), pointerStep(InputStep::Release, point, use.button)};
  });
  return target.needsPage() ? noPointError(target) : error;
}

QString PointerActions::turnWheel(const SharedPtr<Object>& object, const QPointF& scroll) const {
  ActionTarget target(object, "scrolled", m_isStrict);
  QString error =
      act(target, {}, false, [](const QPointF& point) { return InputSteps{pointerStep(InputStep::Move, point)}; });
  // What the pointer left or came to may have made the page shift.
  error = !error.isEmpty() || target.needsPage() ? error : target.reach({}, false, [&](const QPointF& point) {
    InputStep wheel = pointerStep(InputStep::Wheel, point);
    wheel.scroll = scroll;
    return target.perform({wheel});
  });
  return target.needsPage() ? noPointError(target) : error;
}

QString PointerActions::drag(const SharedPtr<Object>& from, const SharedPtr<Object>& to) const {
  ActionTarget source(from, "dragged", m_isStrict);
  QPointF begin;
  QString error = act(source, {}, true, [&begin, &source](const QPointF& point) {
    begin = point;
    source.ask(beginDrag);
    return InputSteps{pointerStep(InputStep::Move, point), pointerStep(InputStep::Press, point)};
  });
  if (!error.isEmpty() || source.needsPage()) {
    return source.needsPage() ? noPointError(source) : error;
  }
  // Pages take the first pixels for an unsteady hand.
  error = moveAlong(source, {begin + QPointF(3, 3), begin + QPointF(8, 8)});
  if (!error.isEmpty()) {
    return error;
  }
  ActionTarget destination(to, "dragged to", m_isStrict);
  QPointF end = begin;
  error = destination.find();
  error = !error.isEmpty() ? error : destination.reach({}, false, [&](const QPointF& point) {
    end = point;
    // On the way pages make room for what is dragged.
    return moveAlong(destination, {(begin + point) / 2, point + QPointF(1, 1), point});
  });
  const InputSteps release{pointerStep(InputStep::Release, end)};
  const QString released = source.connection().perform(release);
  return error.isEmpty() ? released : error;
}

QString PointerActions::setChecked(const SharedPtr<Object>& object, bool isChecked) const {
  ActionTarget target(object, "checked", m_isStrict);
  const QString error = target.find();
  if (!error.isEmpty()) {
    return error;
  }
  const QString wanted = isChecked ? QStringLiteral("true") : QStringLiteral("false");
  const auto state = [&target] { return target.ask(QStringLiteral("__corvex__checkedState(%1)")).text; };
  const QString before = state();
  if (before != QLatin1String("true") && before != QLatin1String("false") && before != QLatin1String("mixed")) {
    return target.failure(QStringLiteral("it is no check box, radio button or switch"));
  }
  const QString clicked = before == wanted ? QString() : click(object, {});
  if (!clicked.isEmpty() || !target.connection().isAvailable() || before == wanted) {
    return clicked;
  }
  return state() == wanted ? QString() : target.failure(QStringLiteral("a click left it as it was"));
}

}  // namespace Corvex::Webhook
