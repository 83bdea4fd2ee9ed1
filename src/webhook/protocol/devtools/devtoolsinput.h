#pragma once

#include "webhook/protocol/dialect.h"
#include "webhook/protocol/inputstep.h"

namespace Corvex::Webhook::DevTools {

/// Writes input steps as DevTools requests. Each of these says what is held down, so this keeps it, one for a page.
class InputWriter {
public:
  QVector<Command> write(const InputSteps& steps);

private:
  Command write(const InputStep& step);
  Command pointer(const char* type, const InputStep& step);
  Command key(const InputStep& step);

  int m_modifiers = 0;
  int m_buttons = 0;
};

}  // namespace Corvex::Webhook::DevTools
