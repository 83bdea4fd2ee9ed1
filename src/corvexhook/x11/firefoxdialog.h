#pragma once

namespace Corvex {

/// Whether a process shows a window that is a dialog, on the X server that DISPLAY names. False without a server.
bool hasFirefoxDialog(int pid);

}  // namespace Corvex
