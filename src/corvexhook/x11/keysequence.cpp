#include "corvexhook/x11/keysequence.h"

#include "corvexhook/x11/keysymbols.h"

#include <QRegularExpression>

#include <X11/Xlib.h>

namespace Corvex {

namespace {

struct ModifierRow {
  const char* name;
  int mask;
};

const ModifierRow modifierRows[] = {
    {"shift", ShiftMask}, {"ctrl", ControlMask}, {"control", ControlMask}, {"alt", Mod1Mask},
    {"meta", Mod4Mask},   {"super", Mod4Mask},   {"win", Mod4Mask},        {"altgr", Mod5Mask},
};

struct NameRow {
  const char* name;
  const char* symbolName;
};

// Names that X11 writes otherwise, or not at all.
const NameRow nameRows[] = {
    {"enter", "Return"},        {"esc", "Escape"},
    {"backspace", "BackSpace"}, {"del", "Delete"},
    {"ins", "Insert"},          {"pageup", "Prior"},
    {"pagedown", "Next"},       {"capslock", "Caps_Lock"},
    {"numlock", "Num_Lock"},    {"scrolllock", "Scroll_Lock"},
    {"shift", "Shift_L"},       {"ctrl", "Control_L"},
    {"control", "Control_L"},   {"alt", "Alt_L"},
    {"meta", "Super_L"},        {"super", "Super_L"},
    {"win", "Super_L"},         {"altgr", "ISO_Level3_Shift"},
};

template <typename Row, int Count>
const Row* rowNamed(const Row (&rows)[Count], const QString& name) {
  for (const Row& row : rows) {
    if (name.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0) {
      return &row;
    }
  }
  return nullptr;
}

KeySym symbolOfName(const QString& name) {
  const NameRow* const row = rowNamed(nameRows, name);
  if (row) {
    return XStringToKeysym(row->symbolName);
  }
  const QString lower = name.toLower();
  const QString capital = lower.left(1).toUpper() + lower.mid(1);
  for (const QString& spelling : {name, capital, lower}) {
    const KeySym symbol = XStringToKeysym(spelling.toLatin1().constData());
    if (symbol) {
      return symbol;
    }
  }
  return 0;
}

/// `character` is one, of one or two units.
KeySym symbolOfCharacter(const QString& character) {
  const uint code = character.size() == 2 ? QChar::surrogateToUcs4(character.at(0), character.at(1)) : 0;
  int likelyState = 0;
  const KeySym symbol =
      code ? 0 : XStringToKeysymEx(character == QLatin1String("\r") ? QStringLiteral("\n") : character, &likelyState);
  const KeySym unicodeSymbols = 0x01000000;
  return symbol ? symbol : unicodeSymbols | (code ? code : character.at(0).unicode());
}

int lengthOfCharacter(const QString& text, int at) {
  return text.at(at).isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate() ? 2 : 1;
}

/// "Ctrl+Shift+End": the last part is the key, which may be a plus itself.
FunctionCallResult<KeyStroke> parseChord(const QString& chord) {
  using Result = FunctionCallResult<KeyStroke>;
  const int keyAt = chord.lastIndexOf(QLatin1Char('+'), chord.size() - 2) + 1;
  const QString key = chord.mid(keyAt);
  KeyStroke stroke;
  for (const QString& name : chord.left(keyAt).split(QLatin1Char('+'), Qt::SkipEmptyParts)) {
    const ModifierRow* const row = rowNamed(modifierRows, name);
    if (!row) {
      return Result::failure(
          QStringLiteral("'%1' in the key '<%2>' is no modifier; there are Shift, Ctrl, Alt, AltGr and Meta.")
              .arg(name, chord));
    }
    stroke.modifiers |= row->mask;
  }
  const bool isCharacter = key.size() == lengthOfCharacter(key, 0);
  // Ctrl+A means the key with an A on it, without Shift.
  stroke.symbol = isCharacter ? symbolOfCharacter(stroke.modifiers ? key.toLower() : key) : symbolOfName(key);
  return stroke.symbol ? Result::success(stroke)
                       : Result::failure(QStringLiteral("There is no key '<%1>'. Write a name such as <Return> or "
                                                        "<Ctrl+Home>, and <less> for the character '<' itself.")
                                             .arg(chord));
}

}  // namespace

FunctionCallResult<std::vector<KeyStroke>> parseKeySequence(const QString& text) {
  using Result = FunctionCallResult<std::vector<KeyStroke>>;
  static const QRegularExpression chordAtStart(QStringLiteral("\\G<((?:\\w+\\+)+(?:\\w+|[^\\s\\w])|\\w{2,})>"),
                                               QRegularExpression::UseUnicodePropertiesOption);
  std::vector<KeyStroke> strokes;
  for (int at = 0; at < text.size();) {
    const QRegularExpressionMatch match =
        text.at(at) == QLatin1Char('<') ? chordAtStart.match(text, at) : QRegularExpressionMatch();
    if (!match.hasMatch()) {
      const int length = lengthOfCharacter(text, at);
      strokes.push_back({symbolOfCharacter(text.mid(at, length)), 0});
      at += length;
      continue;
    }
    const FunctionCallResult<KeyStroke> stroke = parseChord(match.captured(1));
    if (stroke.failed()) {
      return Result::failure(stroke.error);
    }
    strokes.push_back(stroke.value);
    at = match.capturedEnd();
  }
  return Result::success(strokes);
}

QString keySequenceOf(QString text) { return text.replace(QLatin1Char('<'), QStringLiteral("<less>")); }

}  // namespace Corvex
