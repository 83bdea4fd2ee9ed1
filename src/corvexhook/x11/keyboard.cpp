#include "corvexhook/x11/keyboard.h"

#include "corvexhook/x11/connection.h"
#include "corvexhook/x11/keycodes.h"
#include "corvexhook/x11/sparekeys.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

namespace Corvex {

namespace {

struct ModifierKey {
  int mask;
  KeySym symbol;
};

const ModifierKey modifierKeys[] = {
    {ControlMask, XK_Control_L},     {Mod1Mask, XK_Alt_L}, {Mod4Mask, XK_Super_L}, {ShiftMask, XK_Shift_L},
    {Mod5Mask, XK_ISO_Level3_Shift},
};

/// Off as long as this lives: with Caps Lock on, letters would come as capitals.
class CapsLockOff {
public:
  explicit CapsLockOff(XConnection& connection) : m_connection(connection) {
    XkbStateRec now = {};
    if (XkbGetState(connection.display(), XkbUseCoreKbd, &now) == Success && (now.locked_mods & LockMask)) {
      m_wasOn = true;
      lock(0);
    }
  }
  ~CapsLockOff() {
    if (m_wasOn) {
      lock(LockMask);
    }
  }

  CapsLockOff(const CapsLockOff&) = delete;
  CapsLockOff& operator=(const CapsLockOff&) = delete;

private:
  void lock(unsigned int modifiers) {
    if (m_connection.isUsable()) {
      XkbLockModifiers(m_connection.display(), XkbUseCoreKbd, LockMask, modifiers);
      m_connection.finish();
    }
  }

  XConnection& m_connection;
  bool m_wasOn = false;
};

class Typing {
public:
  explicit Typing(XConnection& connection) : m_connection(connection), m_capsLock(connection), m_spare(connection) {
    forgetXKeyMap();
  }

  QString type(const KeyStroke& stroke) {
    KeyCode key = 0;
    int state = 0;
    if (!getXKeyCodeAndStateFromSym(m_connection.display(), stroke.symbol, &key, &state)) {
      key = spareKey(stroke.symbol);
      state = 0;
    }
    if (key) {
      press(key, state | stroke.modifiers);
    }
    const QString error = m_connection.finish();
    return key || !error.isEmpty() ? error
                                   : QStringLiteral(
                                         "The keyboard of the X server has no key for one of the "
                                         "characters, and no spare key to put it on.");
  }

private:
  KeyCode spareKey(KeySym symbol) {
    const KeyCode key = m_spare.keyFor(symbol);
    if (key || !m_spare.exist()) {
      return key;
    }
    m_spare.release();
    return m_connection.isUsable() ? m_spare.keyFor(symbol) : 0;
  }

  void press(KeyCode key, int state) {
    std::vector<KeyCode> keys;
    for (const ModifierKey& modifier : modifierKeys) {
      const KeyCode code = state & modifier.mask ? XKeysymToKeycode(m_connection.display(), modifier.symbol) : 0;
      if (code) {
        keys.push_back(code);
      }
    }
    keys.push_back(key);
    for (const KeyCode code : keys) {
      XTestFakeKeyEvent(m_connection.display(), code, True, CurrentTime);
    }
    for (auto code = keys.rbegin(); code != keys.rend(); ++code) {
      XTestFakeKeyEvent(m_connection.display(), *code, False, CurrentTime);
    }
  }

  XConnection& m_connection;
  CapsLockOff m_capsLock;
  SpareKeys m_spare;
};

}  // namespace

QString typeOnXKeyboard(XConnection& connection, const std::vector<KeyStroke>& strokes) {
  Typing typing(connection);
  for (const KeyStroke& stroke : strokes) {
    const QString error = typing.type(stroke);
    if (!error.isEmpty()) {
      return error;
    }
  }
  return QString();
}

}  // namespace Corvex
