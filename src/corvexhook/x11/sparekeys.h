#pragma once

#include "corvexhook/x11/xtypes.h"

#include <map>
#include <vector>

namespace Corvex {

class XConnection;

/// Keys without a symbol, which take some for a while. They lose them with the object.
class SpareKeys {
public:
  explicit SpareKeys(XConnection& connection);
  ~SpareKeys();

  SpareKeys(const SpareKeys&) = delete;
  SpareKeys& operator=(const SpareKeys&) = delete;

  /// The key that gives the symbol, which is put on a free one if there is none yet. 0 when all keys are taken.
  KeyCode keyFor(KeySym symbol);

  /// Whether the keyboard has any such key.
  bool exist() const { return !m_free.empty() || !m_taken.empty(); }

  /// Takes the symbols off again, after programs had time to look up what was typed.
  void release();

private:
  void put(KeyCode key, KeySym symbol);

  XConnection& m_connection;
  std::vector<KeyCode> m_free;
  std::map<KeySym, KeyCode> m_taken;
};

}  // namespace Corvex
