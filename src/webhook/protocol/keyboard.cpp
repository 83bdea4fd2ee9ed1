#include "webhook/protocol/keyboard.h"

#include <QHash>

namespace Corvex::Webhook {

namespace {

struct NamedRow {
  const char* names;  ///< Those that scripts may use, parted by blanks.
  const char* key;
  const char* code;
  int keyCode;
  ushort webDriver;
  const char* text = "";
  int modifier = 0;
};

const NamedRow namedRows[] = {
    {"Return Enter", "Enter", "Enter", 13, 0xE006, "\r"},
    {"Tab", "Tab", "Tab", 9, 0xE004},
    {"Esc Escape", "Escape", "Escape", 27, 0xE00C},
    {"Space", " ", "Space", 32, 0x0020, " "},
    {"Backspace", "Backspace", "Backspace", 8, 0xE003},
    {"Del Delete", "Delete", "Delete", 46, 0xE017},
    {"Ins Insert", "Insert", "Insert", 45, 0xE016},
    {"Home", "Home", "Home", 36, 0xE011},
    {"End", "End", "End", 35, 0xE010},
    {"PageUp PgUp", "PageUp", "PageUp", 33, 0xE00E},
    {"PageDown PgDown", "PageDown", "PageDown", 34, 0xE00F},
    {"Left ArrowLeft", "ArrowLeft", "ArrowLeft", 37, 0xE012},
    {"Up ArrowUp", "ArrowUp", "ArrowUp", 38, 0xE013},
    {"Right ArrowRight", "ArrowRight", "ArrowRight", 39, 0xE014},
    {"Down ArrowDown", "ArrowDown", "ArrowDown", 40, 0xE015},
    {"F1", "F1", "F1", 112, 0xE031},
    {"F2", "F2", "F2", 113, 0xE032},
    {"F3", "F3", "F3", 114, 0xE033},
    {"F4", "F4", "F4", 115, 0xE034},
    {"F5", "F5", "F5", 116, 0xE035},
    {"F6", "F6", "F6", 117, 0xE036},
    {"F7", "F7", "F7", 118, 0xE037},
    {"F8", "F8", "F8", 119, 0xE038},
    {"F9", "F9", "F9", 120, 0xE039},
    {"F10", "F10", "F10", 121, 0xE03A},
    {"F11", "F11", "F11", 122, 0xE03B},
    {"F12", "F12", "F12", 123, 0xE03C},
    {"Shift", "Shift", "ShiftLeft", 16, 0xE008, "", ShiftHeld},
    {"Ctrl Control", "Control", "ControlLeft", 17, 0xE009, "", ControlHeld},
    {"Alt", "Alt", "AltLeft", 18, 0xE00A, "", AltHeld},
    {"Meta", "Meta", "MetaLeft", 91, 0xE03D, "", MetaHeld},
};

struct SymbolRow {
  char plain;
  char shifted;
  const char* code;
  int keyCode;
};

const SymbolRow symbolRows[] = {
    {'0', ')', "Digit0", 48},      {'1', '!', "Digit1", 49},       {'2', '@', "Digit2", 50},
    {'3', '#', "Digit3", 51},      {'4', '$', "Digit4", 52},       {'5', '%', "Digit5", 53},
    {'6', '^', "Digit6", 54},      {'7', '&', "Digit7", 55},       {'8', '*', "Digit8", 56},
    {'9', '(', "Digit9", 57},      {'`', '~', "Backquote", 192},   {'-', '_', "Minus", 189},
    {'=', '+', "Equal", 187},      {'[', '{', "BracketLeft", 219}, {']', '}', "BracketRight", 221},
    {'\\', '|', "Backslash", 220}, {';', ':', "Semicolon", 186},   {'\'', '"', "Quote", 222},
    {',', '<', "Comma", 188},      {'.', '>', "Period", 190},      {'/', '?', "Slash", 191},
};

Key namedKey(const NamedRow& row) {
  return {QLatin1String(row.key),
          QLatin1String(row.code),
          row.keyCode,
          QLatin1String(row.text),
          QChar(row.webDriver),
          row.modifier,
          false};
}

Key characterKey(char character, const QString& code, int keyCode, bool isShifted) {
  const QString text = QChar::fromLatin1(character);
  return {text, code, keyCode, text, text, 0, isShifted};
}

QHash<QString, Key> keysOfCharacters() {
  QHash<QString, Key> keys;
  const auto add = [&keys](const Key& key) { keys.insert(key.text, key); };
  for (const SymbolRow& row : symbolRows) {
    add(characterKey(row.plain, QLatin1String(row.code), row.keyCode, false));
    add(characterKey(row.shifted, QLatin1String(row.code), row.keyCode, true));
  }
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    const QString code = QStringLiteral("Key") + QLatin1Char(letter);
    add(characterKey(letter, code, letter, true));
    add(characterKey(static_cast<char>(letter - 'A' + 'a'), code, letter, false));
  }
  for (const NamedRow& row : namedRows) {
    if (*row.text) {
      add(namedKey(row));
    }
  }
  keys.insert(QStringLiteral("\n"), namedKey(namedRows[0]));
  keys.insert(QStringLiteral("\r\n"), namedKey(namedRows[0]));
  keys.insert(QStringLiteral("\t"), namedKey(namedRows[1]));
  return keys;
}

}  // namespace

Key keyFor(const QString& character) {
  static const QHash<QString, Key> keys = keysOfCharacters();
  const auto found = keys.constFind(character);
  return found != keys.constEnd() ? *found : Key{character, {}, 0, character, character, 0, false};
}

std::optional<Key> keyNamed(const QString& name) {
  for (const NamedRow& row : namedRows) {
    if (!name.isEmpty() && QString::fromLatin1(row.names).split(QLatin1Char(' ')).contains(name)) {
      return namedKey(row);
    }
  }
  return {};
}

}  // namespace Corvex::Webhook
