#pragma once

#include "webhook/protocol/dialect.h"
#include "webhook/protocol/inputstep.h"

namespace Corvex::Webhook::Bidi {

/// Writes input for one page; the browser keeps what is held down.
class InputWriter {
public:
  /// All steps as one request.
  Command write(const QString& page, const InputSteps& steps);

private:
  InputSteps withReleases(const InputSteps& steps);

  QVector<PointerButton> m_held;
};

}  // namespace Corvex::Webhook::Bidi
