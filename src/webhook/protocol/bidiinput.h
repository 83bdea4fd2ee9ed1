#pragma once

#include "webhook/protocol/dialect.h"
#include "webhook/protocol/inputstep.h"

namespace Corvex::Webhook::Bidi {

/// All steps as one request; the browser keeps what is held down.
Command performActions(const QString& page, const InputSteps& steps);

}  // namespace Corvex::Webhook::Bidi
