#pragma once

#include "corvexhook/x11/xtypes.h"

#include <QString>

namespace Corvex {

/// A connection to the X server that DISPLAY names, for one piece of work. While it exists, no error of the server and
/// no loss of the connection ends the process: `error` tells of them. Connections end in the reverse order of their
/// beginnings.
class XConnection {
public:
  XConnection();
  ~XConnection();

  XConnection(const XConnection&) = delete;
  XConnection& operator=(const XConnection&) = delete;

  /// Null where there is no X server, which `error` then says.
  Display* display() const { return m_display; }

  /// The first thing that went wrong, or an empty text.
  const QString& error() const { return m_error; }
  /// Whether the server can still be asked.
  bool isUsable() const { return m_display && !m_isLost; }

  /// Waits until the server has done all that it was asked for. Answers `error`.
  const QString& finish();

  /// Called by the handlers that Xlib has for the whole process.
  static XConnection* of(const Display* display);
  void noteError(const QString& what);
  void noteLoss();

private:
  void open();

  Display* m_display = nullptr;
  XConnection* m_outer = nullptr;
  QString m_error;
  bool m_isLost = false;
};

}  // namespace Corvex
