#pragma once

#include <QString>
#include <optional>

namespace Corvex::Webhook {

/// A key of a keyboard with the US layout, or a character that this layout lacks.
struct Key {
  QString key;             ///< `key` of its events: a character, or a name such as "Enter".
  QString code;            ///< `code` of its events, such as "KeyA"; "" for a character that the layout lacks.
  int keyCode = 0;         ///< `keyCode` of its key events; 0 likewise.
  QString text;            ///< What it types; "" for keys that type nothing.
  QString webDriver;       ///< The character that stands for it in WebDriver's actions.
  int modifier = 0;        ///< For a modifier key its bit among `Modifier`, else 0.
  bool isShifted = false;  ///< Whether Shift has to be held for it.

  bool isOnLayout() const { return !code.isEmpty(); }
};

/// The bits that DevTools has for them.
enum Modifier { AltHeld = 1, ControlHeld = 2, MetaHeld = 4, ShiftHeld = 8 };

/// The key that types a character, the line break included. `character` may be more than one code unit: a composed
/// character is pressed as one.
Key keyFor(const QString& character);

/// The key of a name as scripts write it between angle brackets, such as "Return", "Esc", "F5" or "Ctrl"; nothing for
/// other texts. Case counts.
std::optional<Key> keyNamed(const QString& name);

}  // namespace Corvex::Webhook
