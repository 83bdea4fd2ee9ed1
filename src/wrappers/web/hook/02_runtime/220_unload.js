// Gives: the messages that tell the driver of a page that goes away.
// Needs: recording/capture, runtime/natives, runtime/state, runtime/contexts, runtime/transport, runtime/logging,
//   browsers.

// Asynchronous on every browser: a driver that waits in a script call could not answer.
function __corvex__triggerUnloadEventHandler(win) {
  try {
    if (__corvex__isEmbeddedIntoHookableToolkit()) {
      return;
    }
    var details = "&location=" + escape(win.location.href) + "&context=" + escape(__corvex__contextOf(win));
    var head = "eventHandler" + __corvex__natives.milliseconds() + "&name=BodyUnloaded";
    __corvex__sendXMLHttpRequest(document, head + details, true);
  } catch (e) {
    __corvex__logInPage("Ooops: " + e.message);
  }
}

function __corvex__topLevelUnloadHandler(event, d) {
  __corvex__windowState.isPageLeaving = true;
  try {
    __corvex__triggerUnloadEventHandler(window.top);
    __corvex__handler(event, d);
  } finally {
    __corvex__windowState.isPageLeaving = false;
  }
}

// A handler that the page sets later is overwritten; only the one that stood there at the start is chained.
function __corvex__installUnload() {
  if (__corvex__isPageLoaded() && window.onunload !== __corvex__topLevelUnloadHandler) {
    window.onunload = __corvex__topLevelUnloadHandler;
  }
}
