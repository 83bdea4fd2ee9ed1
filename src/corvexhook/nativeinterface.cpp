#include "corvexhook/nativeinterface.h"

#include "corvexhook/x11/connection.h"
#include "corvexhook/x11/dialogs.h"
#include "corvexhook/x11/keyboard.h"
#include "corvexhook/x11/keysequence.h"
#include "corvexhook/x11/pointer.h"
#include "corvexhook/x11/xtest.h"

#include <algorithm>
#include <cstdlib>

namespace Corvex {

namespace {

const int mostNotches = 1000;
const int wheelUp = 4;
const int wheelDown = 5;

struct ButtonRow {
  MouseButton::Value button;
  int xButton;
};

const ButtonRow buttonRows[] = {
    {MouseButton::Default, 1}, {MouseButton::Left, 1}, {MouseButton::Middle, 2}, {MouseButton::Right, 3}};

class ScreenInput : public NativeInterface {
public:
  QString pointerMove(ScreenPoint position) override {
    return at(position, [](XConnection&) { return QString(); });
  }

  QString pointerPress(MouseButton::Value button, ScreenPoint position) override {
    return withButton(button, position,
                      [](XConnection& connection, int xButton) { return setXButton(connection, xButton, true); });
  }

  QString pointerRelease(MouseButton::Value button, ScreenPoint position) override {
    return withButton(button, position,
                      [](XConnection& connection, int xButton) { return setXButton(connection, xButton, false); });
  }

  QString pointerClick(MouseButton::Value button, ScreenPoint position) override {
    return withButton(button, position, click);
  }

  QString pointerWheel(int notches, ScreenPoint position) override {
    return at(position, [notches](XConnection& connection) {
      QString error;
      for (int left = std::min(std::abs(notches), mostNotches); left > 0 && error.isEmpty(); --left) {
        error = click(connection, notches > 0 ? wheelDown : wheelUp);
      }
      return error;
    });
  }

  QString typeKeys(const QString& keys) override {
    const auto strokes = parseKeySequence(keys);
    if (strokes.failed()) {
      return strokes.error;
    }
    XConnection connection;
    const QString error = whyNoXInput(connection);
    return error.isEmpty() ? typeOnXKeyboard(connection, strokes.value) : error;
  }

  std::optional<NativeDialog> topDialog() override {
    XConnection connection;
    const std::optional<XDialog> dialog = connection.isUsable() ? topXDialog(connection) : std::nullopt;
    return dialog ? std::make_optional(NativeDialog{{dialog->x, dialog->y, dialog->width, dialog->height},
                                                    QString::fromLocal8Bit(dialog->windowClass)})
                  : std::nullopt;
  }

private:
  static QString click(XConnection& connection, int xButton) {
    const QString error = setXButton(connection, xButton, true);
    return error.isEmpty() ? setXButton(connection, xButton, false) : error;
  }

  template <typename Work>
  static QString at(ScreenPoint position, const Work& work) {
    XConnection connection;
    QString error = whyNoXInput(connection);
    if (error.isEmpty()) {
      error = moveXPointer(connection, position.x, position.y);
    }
    return error.isEmpty() ? work(connection) : error;
  }

  template <typename Work>
  static QString withButton(MouseButton::Value button, ScreenPoint position, const Work& work) {
    for (const ButtonRow& row : buttonRows) {
      if (row.button == button) {
        return at(position, [&](XConnection& connection) { return work(connection, row.xButton); });
      }
    }
    return QStringLiteral("There is no mouse button %1: 1 is the left one, 2 the right one, 4 the middle one.")
        .arg(button);
  }
};

}  // namespace

NativeInterface::~NativeInterface() = default;

QString NativeInterface::keysForText(const QString& text) { return keySequenceOf(text); }

NativeInterface& screenInput() {
  static ScreenInput input;
  return input;
}

}  // namespace Corvex
