// Gives: the hooking of frames, now and with each sweep, and the bookkeeping of popups.
// Needs: recording/touch, runtime/builtins, runtime/state, runtime/framewalk, runtime/contexts, runtime/logging,
//   runtime/frameaccess, runtime/override, runtime/windows, runtime/reload, runtime/listeners, runtime/innertext.

// A document that was written anew has lost its listeners and kept its marks.
function __corvex__isHookedDocument(doc) {
  if (!doc.__corvex__hooked__events) {
    return false;
  }
  var root = doc.documentElement;
  doc.__corvex__hooked__root = doc.__corvex__hooked__root || root;
  return doc.__corvex__hooked__root === root || !root;
}

function __corvex__markAsHooked(doc) {
  doc.__corvex__hooked__events = true;
  doc.__corvex__hooked__root = doc.documentElement;
}

function __corvex__isZeroSized(f) {
  return (!!f.height && !(parseInt(f.height, 10) > 0)) || (!!f.width && !(parseInt(f.width, 10) > 0));
}

function __corvex__watchFrameReload(f, w) {
  if (!window.__corvex__ie) {
    __corvex__saveAndSetReloadHandlers(w);
  } else if (!__corvex__isZeroSized(f)) {
    if (w.document.body) {
      __corvex__hookLoadingIE(w);
    } else {
      __corvex__addWindowForLazyHook(w);
    }
  }
}

function __corvex__hookDocumentOfFrame(f, w) {
  __corvex__markAsHooked(w.document);
  __corvex__listenForFields(w);
  __corvex__listenForFrames(w.document);
  __corvex__listenInDocument(w.document, __corvex__frameListeners);
  __corvex__hookupTouchEvents(w);
  __corvex__watchFrameReload(f, w);
  if (window.__corvex__mozilla) {
    __corvex__setupInnerTextFunctions(w);
  }
  var hooks = window.top.__corvex__hookInFrame__hooks;
  for (var i = 0; i < hooks.length; ++i) {
    hooks[i](f);
  }
  __corvex__hookupWindow(w);
}

function __corvex__hookInFrame(f) {
  var w = f.contentWindow;
  if (!w || f.__corvex__unhookable) {
    return;
  }
  var accessible = __corvex__isFrameAccessible(f);
  if (accessible === null) {
    __corvex__later(function () {
      __corvex__hookInFrame(f);
    }, 250);
    return;
  }
  if (!accessible) {
    f.__corvex__unhookable = true;
    return;
  }
  try {
    if (!__corvex__isHookedDocument(w.document)) {
      __corvex__hookDocumentOfFrame(f, w);
    }
    __corvex__hookFrames(w);
  } catch (e) {
    __corvex__logInPage("Could not hook up frame " + __corvex__frameDescription(f) + ": " + e);
  }
}

// The newest popup is taken, whichever window unloaded.
function __corvex__popupUnload(e) {
  __corvex__callSavedHandler(this.document && this.document.body, "old_onunload", this, e);
  __corvex__later(function () {
    __corvex__rehookWindow(__corvex__windowState.popups[__corvex__windowState.popupcnt]);
  }, 1000);
}

function __corvex__watchPopup(popup) {
  var body = popup.document.body;
  if (body.onunload !== __corvex__popupUnload) {
    body.old_onunload = body.onunload;
  }
  (window.__corvex__ie ? body : popup).onunload = __corvex__popupUnload;
}

// Takes the mailbox. Errors stay here: a popup that went to another origin must not keep frames from being hooked.
function __corvex__hookMailboxWindow(w) {
  var popup = __corvex__windowState.framewin;
  __corvex__windowState.framewin = undefined;
  if (!popup || popup === window) {
    return;
  }
  __corvex__windowState.popupcnt += 1;
  __corvex__windowState.popups[__corvex__windowState.popupcnt] = popup;
  try {
    if (window.__corvex__ie && !popup.document.body) {
      __corvex__addWindowForLazyHook(w);
    } else {
      __corvex__watchPopup(popup);
    }
  } catch (e) {
    // It stays without its unload function; the sweep hooks its frames all the same.
  }
}

// w: may be absent.
function __corvex__hookFrames(w) {
  try {
    var target = w || __corvex__windowState.framewin || window;
    __corvex__hookMailboxWindow(target);
    var frames = window.top.__corvex.getAllFrames(target.document);
    for (var i = 0; i < frames.length; ++i) {
      frames[i].onreadystatechange = __corvex__frameChanged;
      __corvex__hookInFrame(frames[i]);
    }
  } catch (e) {
    // A window of another origin, or one without a document.
  }
}

function __corvex__hookFramesOfAllWindows() {
  if (!__corvex__isHookedDocument(document)) {
    __corvex__listenInOwnDocument();
  }
  var windows = __corvex__contextList();
  for (var i = 0; i < windows.length; ++i) {
    __corvex__hookFrames(windows[i]);
  }
}
