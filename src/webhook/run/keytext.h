#pragma once

#include "webhook/protocol/inputstep.h"

namespace Corvex::Webhook {

/// A part of a text that is to be typed: characters, or one combination of keys.
struct KeyTextPart {
  QString text;
  QVector<Key> combination;  ///< In the order in which they go down; empty for characters.
};

/// Takes a text apart at what names keys: "<Return>", "<Ctrl+A>", "<Shift+Tab>". Other angle brackets are characters.
QVector<KeyTextPart> parseKeyText(const QString& text);

/// The steps that type characters, key by key.
InputSteps stepsForText(const QString& text);
/// The steps that press keys together.
InputSteps stepsForCombination(const QVector<Key>& keys);
/// Holds, or lets go of, the modifiers of a sum of `HTML_Event` values around `steps`.
InputSteps withModifiers(int modifierState, const InputSteps& steps);

}  // namespace Corvex::Webhook
