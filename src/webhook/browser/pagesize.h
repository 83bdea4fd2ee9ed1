#pragma once

namespace Corvex::Webhook {

// What a page gets of the window of a browser that is started, in CSS pixels: as much in each browser, give or take its
// bars, and with or without a window on the screen. Pages arrange themselves by it.
const int usualPageWidth = 1280;
const int usualPageHeight = 720;

}  // namespace Corvex::Webhook
