#pragma once

#include <QByteArray>

#include <optional>

namespace Corvex {

class XConnection;

struct XDialog {
  int x, y, width, height;  ///< On the screen.
  QByteArray windowClass;
};

/// The topmost window that can be seen and is of the type of dialogs.
std::optional<XDialog> topXDialog(XConnection& connection);

}  // namespace Corvex
