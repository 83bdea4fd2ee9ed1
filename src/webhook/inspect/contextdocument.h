#pragma once

#include "corvexhook/object.h"

namespace Corvex::Webhook {

struct Context;

/// The document that the context's window or frame shows now; null where it cannot be reached, and the script error
/// may say why.
SharedPtr<Object> documentOfContext(const Context& context);

}  // namespace Corvex::Webhook
