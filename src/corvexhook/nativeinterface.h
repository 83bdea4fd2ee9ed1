#pragma once

#include "corvexhook/export.h"
#include "corvexhook/geometry.h"

#include <QString>

#include <optional>

namespace Corvex {

/// A window that asks the user for something.
struct NativeDialog {
  ScreenRectangle area;  ///< Without the window manager's frame.
  QString program;       ///< The class of the window, by which its program calls itself.
};

/// Input as a user gives it: by pointer and keyboard, to whatever the screen shows. Each operation answers why it could
/// not be done, or an empty text; what came of it on the screen is not known.
class CORVEXHOOK_EXPORT NativeInterface {
public:
  using ScreenPoint = Point<CoordinateSystem::Screen>;

  virtual ~NativeInterface();

  virtual QString pointerMove(ScreenPoint position) = 0;
  /// These first move the pointer to the position.
  virtual QString pointerPress(MouseButton::Value button, ScreenPoint position) = 0;
  virtual QString pointerRelease(MouseButton::Value button, ScreenPoint position) = 0;
  virtual QString pointerClick(MouseButton::Value button, ScreenPoint position) = 0;
  /// Turns the wheel by so many notches, towards the user and so down the page if positive.
  virtual QString pointerWheel(int notches, ScreenPoint position) = 0;

  /// Types a text in which "<Return>", "<Shift+End>" and the like stand for keys. Of a text that cannot be read nothing
  /// is typed.
  virtual QString typeKeys(const QString& keys) = 0;

  /// The dialog that is above all others, if one is open.
  virtual std::optional<NativeDialog> topDialog() = 0;

  /// What `typeKeys` needs to be given for a text that holds no keys.
  static QString keysForText(const QString& text);
};

/// Input to the X server that DISPLAY names, which is looked for with each operation.
CORVEXHOOK_EXPORT NativeInterface& screenInput();

}  // namespace Corvex
