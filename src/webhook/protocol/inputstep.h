#pragma once

#include <QPointF>
#include <QVector>

#include "webhook/protocol/keyboard.h"

namespace Corvex::Webhook {

enum class PointerButton { Left, Middle, Right };

/// One thing that a person does at mouse or keyboard. Positions are in CSS pixels of the page's visible part, buttons
/// and keys stay down until a step lets them up.
struct InputStep {
  enum Kind {
    Move,
    Press,
    Release,
    Wheel,
    KeyDown,
    KeyUp,
    Insert,  ///< Puts a text in at once, as the choice in a list of suggestions does, without keys.
  };

  Kind kind = Move;
  QPointF position;  ///< Of all pointer steps.
  PointerButton button = PointerButton::Left;
  int clicks = 1;  ///< Of Press and Release: the second ones of a double click have 2.
  QPointF scroll;  ///< Of Wheel, in CSS pixels: to the right and down.
  Key key;         ///< Of KeyDown and KeyUp.
  QString text;    ///< Of Insert.
};

using InputSteps = QVector<InputStep>;

}  // namespace Corvex::Webhook
