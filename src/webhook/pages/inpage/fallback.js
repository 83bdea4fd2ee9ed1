// Gives: the session queue as the way out for a page whose requests do not reach the driver, by a policy of its own or
// of the browser's. Needs: the hook script.

window.__corvex.messageNotSent = function (head, body) {
  window.__corvex.useSessionStorageForEvents = true;
  __corvex__addObjectToEventStorage(body ? { url: head, payload: body } : { payload: head });
  window.__corvex.keepNativeDialogs();
};

// A page that cannot wait for the driver's answer shows its dialogs, and the browser's protocol answers them.
window.__corvex.keepNativeDialogs = function () {
  function restore(w) {
    var names = [["alert", "__corvex__origAlert"], ["confirm", "__corvex__origConfirm"],
      ["prompt", "__corvex__origPrompt"]];
    for (var i = 0; i < names.length; ++i) {
      if (w[names[i][1]]) {
        w[names[i][0]] = w[names[i][1]];
      }
    }
  }
  if (!__corvex__opensNativeDialogs()) {
    // For the frames and windows that are hooked later.
    window.__corvex.nativeDialogsKept = true;
    restore(window);
    __corvex__firstInFrames(document, restore);
  }
};

// An empty page, or one by which a browser tells of an error, has no address of its own by which the driver could
// know it.
if (/^(about|chrome-error):/.test(location.protocol) || /^about:/.test(document.documentURI)) {
  window.__corvex.useSessionStorageForEvents = true;
}

if (window.__corvex.useSessionStorageForEvents) {
  window.__corvex.keepNativeDialogs();
} else {
  // The first message shows whether the way to the driver is open, before there is anything to lose.
  __corvex__debug("hooked " + location.protocol);
}
