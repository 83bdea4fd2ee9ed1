// Gives: what happens when a frame loads or unloads, and the deferred hooking of old Internet Explorer.
// Needs: recording/capture, runtime/natives, runtime/builtins, runtime/state, runtime/eventobject, runtime/override,
//   runtime/frames, runtime/unload.

// Errors of the page's own handler are its own matter.
function __corvex__callSavedHandler(holder, name, self, e) {
  try {
    var handler = holder[name];
    if (handler) {
      holder[name] = undefined;
      __corvex__natives.apply(handler, self, [e]);
    }
  } catch (ex) {
    // As above; or there is no holder.
  }
}

function __corvex__topmostWindow(start) {
  var w = start;
  while (w.parent && w.parent !== w) {
    w = w.parent;
  }
  return w;
}

function __corvex__callSavedHandlers(w, name, e) {
  __corvex__callSavedHandler(w.document && w.document.body, name, w, e);
  __corvex__callSavedHandler(w, name, w, e);
}

// The clear text has no source element, so logging it fails, and what stands after does not run: the first load chains
// the page's handlers, and from then on the lock lets only the mailbox be filled. The sweep finds the new documents.
function __corvex__rehookFrames__load(e) {
  try {
    var w = __corvex__topmostWindow(this);
    __corvex__windowState.framewin = w;
    if (__corvex__windowState.rehookLoadLock) {
      return;
    }
    __corvex__windowState.rehookLoadLock = true;
    __corvex__callSavedHandlers(this, "old_onload", e);
    __corvex__logEvent("__clear__");
    __corvex__later(function () {
      __corvex__hookFrames(w);
    }, 2000);
    __corvex__windowState.rehookLoadLock = false;
  } catch (ex) {
    // See above; the page is not to see it.
  }
}

function __corvex__rehookFrames__unload(e) {
  try {
    var w = this;
    try {
      w = __corvex__topmostWindow(this);
    } catch (ex) {
      // A parent that is gone ends the walk.
    }
    __corvex__windowState.framewin = w;
    if (__corvex__windowState.rehookUnLoadLock) {
      return;
    }
    __corvex__windowState.rehookUnLoadLock = true;
    __corvex__callSavedHandlers(this, "old_onunload", e);
    __corvex__logEvent("__clear__");
    __corvex__triggerUnloadEventHandler(this);
    __corvex__later(function () {
      __corvex__hookFrames(w);
    }, 2000);
    __corvex__windowState.rehookUnLoadLock = false;
  } catch (ex) {
    // As at the load of a frame.
  }
}

// holder: a frame's window, or on old Internet Explorer its body.
function __corvex__saveAndSetReloadHandlers(holder) {
  if (holder.onunload !== __corvex__rehookFrames__unload) {
    holder.old_onunload = holder.onunload;
    holder.onunload = __corvex__rehookFrames__unload;
  }
  if (holder.onload !== __corvex__rehookFrames__load) {
    holder.old_onload = holder.onload;
    holder.onload = __corvex__rehookFrames__load;
  }
}

function __corvex__frameChanged(e) {
  try {
    var frame = __corvex__srcElement(e || window.event);
    __corvex__hookupWindow(frame.contentWindow);
    if (frame.readyState === "interactive") {
      __corvex__logEvent("__clear__");
    }
  } catch (ex) {
    // As at the load of a frame.
  }
}

function __corvex__hookLoadingIE(w) {
  __corvex__saveAndSetReloadHandlers(w.document.body);
}

// False where the window has to wait for the next tick.
function __corvex__hookLazyWindow(w) {
  try {
    if (!w.document.body) {
      return false;
    }
    __corvex__hookLoadingIE(w);
    __corvex__hookupWindow(w);
    __corvex__hookFrames(w);
    return true;
  } catch (e) {
    return false;
  }
}

function __corvex__lazyHookIE() {
  if (!__corvex__windowState.lazyHookWindows.length) {
    __corvex__natives.clearInterval(__corvex__windowState.lazyHookTimer);
    __corvex__windowState.lazyHookTimer = null;
    return;
  }
  // Hooking can add windows.
  var windows = __corvex__windowState.lazyHookWindows;
  __corvex__windowState.lazyHookWindows = [];
  for (var i = 0; i < windows.length; ++i) {
    if (!__corvex__hookLazyWindow(windows[i])) {
      __corvex__windowState.lazyHookWindows.push(windows[i]);
    }
  }
}

// For a window whose document has no body yet.
function __corvex__addWindowForLazyHook(w) {
  __corvex__windowState.lazyHookWindows.push(w);
  if (!__corvex__windowState.lazyHookTimer) {
    __corvex__windowState.lazyHookTimer = __corvex__natives.setInterval(__corvex__quiet(__corvex__lazyHookIE), 100);
  }
}
