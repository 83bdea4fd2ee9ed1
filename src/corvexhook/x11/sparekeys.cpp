#include "corvexhook/x11/sparekeys.h"

#include "corvexhook/x11/connection.h"
#include "shared/wait.h"

#include <X11/Xlib.h>

#include <algorithm>
#include <memory>

namespace Corvex {

namespace {

// Programs look a key's symbol up when they come to its event.
const int lookUpMs = 300;

}  // namespace

SpareKeys::SpareKeys(XConnection& connection) : m_connection(connection) {
  int lowest = 0, highest = 0, perKey = 0;
  XDisplayKeycodes(connection.display(), &lowest, &highest);
  KeySym* const symbols =
      XGetKeyboardMapping(connection.display(), static_cast<KeyCode>(lowest), highest - lowest + 1, &perKey);
  const std::unique_ptr<KeySym, int (*)(void*)> owned(symbols, XFree);
  for (int code = lowest; symbols && code <= highest; ++code) {
    const KeySym* const own = symbols + (code - lowest) * perKey;
    if (std::all_of(own, own + perKey, [](KeySym symbol) { return symbol == NoSymbol; })) {
      m_free.push_back(static_cast<KeyCode>(code));
    }
  }
}

SpareKeys::~SpareKeys() { release(); }

KeyCode SpareKeys::keyFor(KeySym symbol) {
  const auto taken = m_taken.find(symbol);
  if (taken != m_taken.end()) {
    return taken->second;
  }
  if (m_free.empty()) {
    return 0;
  }
  const KeyCode key = m_free.back();
  m_free.pop_back();
  m_taken[symbol] = key;
  put(key, symbol);
  return key;
}

void SpareKeys::release() {
  if (m_taken.empty()) {
    return;
  }
  m_connection.finish();
  gentleSleep(lookUpMs);
  for (const auto& [symbol, key] : m_taken) {
    put(key, NoSymbol);
    m_free.push_back(key);
  }
  m_taken.clear();
  m_connection.finish();
}

void SpareKeys::put(KeyCode key, KeySym symbol) {
  if (m_connection.isUsable()) {
    // Twice, as a letter alone would stand for its small form without Shift and its capital with it.
    KeySym symbols[] = {symbol, symbol};
    XChangeKeyboardMapping(m_connection.display(), key, 2, symbols, 1);
  }
}

}  // namespace Corvex
