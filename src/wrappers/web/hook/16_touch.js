// Gives: whether input is replayed, and recorded, as touches.
// Needs: browsers.

function __corvex__emulateViaTouchEvents() {
  return !!(__corvex__isCocoaTouchWebViewBrowser() || __corvex__isAndroidWebViewBrowser() ||
            __corvex__isProxyOnMobileDevice());
}

// A touch cannot be told apart from its mouse echo, so a platform records the one or the other, never both.
function __corvex__recordTouchEvents() {
  return __corvex__emulateViaTouchEvents();
}
