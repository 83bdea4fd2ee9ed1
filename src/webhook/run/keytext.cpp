#include "webhook/run/keytext.h"

#include <QRegularExpression>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace Corvex::Webhook {

namespace {

InputStep keyStep(InputStep::Kind kind, const Key& key) {
  InputStep step;
  step.kind = kind;
  step.key = key;
  return step;
}

void press(InputSteps& steps, const Key& key) {
  steps << keyStep(InputStep::KeyDown, key) << keyStep(InputStep::KeyUp, key);
}

Key modifierKey(const char* name) { return *keyNamed(QLatin1String(name)); }

bool hasShift(const QVector<Key>& keys) {
  return std::any_of(keys.begin(), keys.end(), [](const Key& key) { return key.modifier == ShiftHeld; });
}

/// The keys between angle brackets; empty where they name none.
QVector<Key> combinationOf(const QString& inside) {
  QVector<Key> keys;
  QStringList names = inside.split(QLatin1Char('+'));
  if (names.size() > 2 && names.last().isEmpty() && names.at(names.size() - 2).isEmpty()) {
    names = names.mid(0, names.size() - 2) << QStringLiteral("+");
  }
  for (const QString& name : names) {
    const bool isLast = keys.size() == names.size() - 1;
    const std::optional<Key> named = keyNamed(name);
    const bool isCharacter = !named && isLast && names.size() > 1 && name.size() == 1 && keyFor(name).isOnLayout();
    if (!isCharacter && (!named || (!isLast && !named->modifier))) {
      return {};
    }
    keys << (named ? *named : keyFor(hasShift(keys) ? name.toUpper() : name.toLower()));
  }
  return keys;
}

}  // namespace

QVector<KeyTextPart> parseKeyText(const QString& text) {
  static const QRegularExpression brackets(QStringLiteral("<([A-Za-z0-9]+(?:\\+[^<>\\s]+)*)>"));
  QVector<KeyTextPart> parts;
  int begin = 0;
  for (auto matches = brackets.globalMatch(text); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    const QVector<Key> keys = combinationOf(match.captured(1));
    if (keys.isEmpty()) {
      continue;
    }
    if (match.capturedStart() > begin) {
      parts << KeyTextPart{text.mid(begin, match.capturedStart() - begin), {}};
    }
    parts << KeyTextPart{{}, keys};
    begin = match.capturedEnd();
  }
  if (begin < text.size()) {
    parts << KeyTextPart{text.mid(begin), {}};
  }
  return parts;
}

InputSteps stepsForText(const QString& text) {
  InputSteps steps;
  const Key shift = modifierKey("Shift");
  bool isShiftHeld = false;
  const auto holdShift = [&](bool isNeeded) {
    if (isNeeded != isShiftHeld) {
      steps << keyStep(isNeeded ? InputStep::KeyDown : InputStep::KeyUp, shift);
      isShiftHeld = isNeeded;
    }
  };
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  for (int begin = 0, end = 0; (end = finder.toNextBoundary()) >= 0; begin = end) {
    const Key key = keyFor(text.mid(begin, end - begin));
    holdShift(key.isShifted);
    if (key.isOnLayout()) {
      press(steps, key);
    } else {
      InputStep insert;
      insert.kind = InputStep::Insert;
      insert.text = key.text;
      steps << insert;
    }
  }
  holdShift(false);
  return steps;
}

InputSteps stepsForCombination(const QVector<Key>& keys) {
  InputSteps steps;
  for (const Key& key : keys) {
    steps << keyStep(InputStep::KeyDown, key);
  }
  for (int i = keys.size() - 1; i >= 0; --i) {
    steps << keyStep(InputStep::KeyUp, keys.at(i));
  }
  return steps;
}

InputSteps withModifiers(int modifierState, const InputSteps& steps) {
  struct Row {
    int bit;
    const char* name;
  };
  static const Row rows[] = {{1, "Alt"}, {2, "Ctrl"}, {4, "Shift"}};
  InputSteps all = steps;
  for (const Row& row : rows) {
    if (modifierState & row.bit) {
      all.prepend(keyStep(InputStep::KeyDown, modifierKey(row.name)));
      all.append(keyStep(InputStep::KeyUp, modifierKey(row.name)));
    }
  }
  return all;
}

}  // namespace Corvex::Webhook
