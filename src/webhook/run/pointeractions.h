#pragma once

#include "corvexhook/object.h"
#include "webhook/protocol/inputstep.h"

#include <optional>

namespace Corvex::Webhook {

/// Where on an element, and with what, the mouse is used.
struct PointerUse {
  std::optional<QPointF> place;  ///< From the element's corner; a point of its own choice without it.
  int modifierState = 0;         ///< A sum of `HTML_Event` values.
  PointerButton button = PointerButton::Left;
};

/// What a person does with the mouse, given to the browser as its own input. The first argument of each action is an
/// object of a page or its name; each answers an error sentence.
class PointerActions {
public:
  explicit PointerActions(bool isStrict) : m_isStrict(isStrict) {}

  QString click(const SharedPtr<Object>& object, const PointerUse& use, int clicks = 1) const;
  QString hover(const SharedPtr<Object>& object, const PointerUse& use) const;
  QString press(const SharedPtr<Object>& object, const PointerUse& use) const;
  QString release(const SharedPtr<Object>& object, const PointerUse& use) const;
  QString turnWheel(const SharedPtr<Object>& object, const QPointF& scroll) const;
  QString drag(const SharedPtr<Object>& from, const SharedPtr<Object>& to) const;
  /// Clicks a check box, a radio button or a switch unless it is as wanted, and sees that it is then.
  QString setChecked(const SharedPtr<Object>& object, bool isChecked) const;

private:
  bool m_isStrict;
};

}  // namespace Corvex::Webhook
