#pragma once

#include "corvexhook/nativeinterface.h"

namespace Corvex::Webhook {

/// Native input while the browser shows no window: it would only hit what else is on the user's screen.
class HiddenScreen : public NativeInterface {
public:
  /// The sentence that every operation answers.
  explicit HiddenScreen(const QString& why) : m_why(why) {}

  QString pointerMove(ScreenPoint) override { return m_why; }
  QString pointerPress(MouseButton::Value, ScreenPoint) override { return m_why; }
  QString pointerRelease(MouseButton::Value, ScreenPoint) override { return m_why; }
  QString pointerClick(MouseButton::Value, ScreenPoint) override { return m_why; }
  QString pointerWheel(int, ScreenPoint) override { return m_why; }
  QString typeKeys(const QString&) override { return m_why; }
  std::optional<NativeDialog> topDialog() override { return {}; }

private:
  QString m_why;
};

}  // namespace Corvex::Webhook
