#include "corvexhook/x11/keycodes.h"

#include <QtDebug>

#include <X11/XKBlib.h>
#include <X11/Xlib.h>

#include <memory>

namespace Corvex {

namespace {

const unsigned int wantedParts = XkbKeyTypesMask | XkbKeySymsMask | XkbModifierMapMask;
const int statesOfLevels[] = {0, ShiftMask, Mod5Mask, Mod5Mask | ShiftMask};
const int stateCount = 4;

struct DescriptionDeleter {
  void operator()(XkbDescPtr description) const { XkbFreeKeyboard(description, 0, True); }
};

struct SymbolsDeleter {
  void operator()(KeySym* symbols) const { XFree(symbols); }
};

struct KeyMap {
  bool wasXkbTried = false;
  std::unique_ptr<XkbDescRec, DescriptionDeleter> description;
  int group = 0;

  int lowest = 0;
  int highest = -1;
  int symbolsPerKey = 0;
  std::unique_ptr<KeySym, SymbolsDeleter> symbols;
};

KeyMap keyMap;

void tryXkb(Display* display) {
  keyMap.wasXkbTried = true;
  int opcode = 0, event = 0, error = 0, major = XkbMajorVersion, minor = XkbMinorVersion;
  const int isThere = XkbQueryExtension(display, &opcode, &event, &error, &major, &minor);
  if (!isThere) {
    qDebug("XkbQueryExtension failed %d", isThere);
    return;
  }
  keyMap.description.reset(XkbGetMap(display, wantedParts, XkbUseCoreKbd));
  XkbStateRec now = {};
  if (XkbGetState(display, XkbUseCoreKbd, &now) == Success) {
    keyMap.group = now.group;
  }
}

void readCoreMap(Display* display) {
  if (!keyMap.symbols) {
    XDisplayKeycodes(display, &keyMap.lowest, &keyMap.highest);
    keyMap.symbols.reset(XGetKeyboardMapping(display, static_cast<KeyCode>(keyMap.lowest),
                                             keyMap.highest - keyMap.lowest + 1, &keyMap.symbolsPerKey));
  }
}

struct Place {
  int code;
  int level;
};

const Place nowhere = {-1, -1};

Place findWithXkb(KeySym keysym) {
  const XkbDescPtr description = keyMap.description.get();
  for (int code = description->min_key_code; code <= description->max_key_code; ++code) {
    const int groups = XkbKeyNumGroups(description, code);
    if (groups == 0) {
      continue;
    }
    const int group = keyMap.group < groups ? keyMap.group : 0;
    for (int level = 0; level < XkbKeyGroupWidth(description, code, group); ++level) {
      if (XkbKeySymEntry(description, code, level, group) == keysym) {
        return {code, level};
      }
    }
  }
  return nowhere;
}

Place findInCoreMap(KeySym keysym) {
  for (int code = keyMap.lowest; keyMap.symbols && code <= keyMap.highest; ++code) {
    const KeySym* const symbols = keyMap.symbols.get() + (code - keyMap.lowest) * keyMap.symbolsPerKey;
    int count = keyMap.symbolsPerKey;
    while (count > 0 && symbols[count - 1] == NoSymbol) {
      --count;
    }
    for (int level = 0; level < count; ++level) {
      if (symbols[level] == keysym) {
        return {code, level};
      }
    }
  }
  return nowhere;
}

}  // namespace

bool getXKeyCodeAndStateFromSym(Display* display, KeySym keysym, KeyCode* keycode, int* state) {
  if (!keyMap.wasXkbTried) {
    tryXkb(display);
  }
  if (!keyMap.description) {
    readCoreMap(display);
  }
  const Place place = keyMap.description ? findWithXkb(keysym) : findInCoreMap(keysym);
  if (place.code < 0) {
    return false;
  }
  const bool isKnownLevel = place.level < stateCount;
  *keycode = static_cast<KeyCode>(place.code);
  *state = isKnownLevel ? statesOfLevels[place.level] : 0;
  return isKnownLevel;
}

void forgetXKeyMap() { keyMap = KeyMap(); }

}  // namespace Corvex
