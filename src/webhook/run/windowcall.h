#pragma once

#include "corvexhook/object.h"
#include "shared/functioncallresult.h"
#include "webhook/run/browsercontrol.h"

namespace Corvex::Webhook {

/// Makes a call that needs a window, unless there is none. A browser or window that went meanwhile says more than what
/// then failed.
template <typename Call>
FunctionCallResult<SharedPtr<Object>> withWindow(const BrowserControl& control, const Call& call) {
  using Result = FunctionCallResult<SharedPtr<Object>>;
  const QString before = control.whyNoWindow();
  const Result result = before.isEmpty() ? call() : Result::failure(before);
  const QString after = result.failed() ? control.whyNoWindow() : QString();
  return after.isEmpty() ? result : Result::failure(after);
}

}  // namespace Corvex::Webhook
