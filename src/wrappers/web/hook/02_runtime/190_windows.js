// Gives: the replacement of open, and what a further top-level window gets.
// Needs: recording/capture, runtime/natives, runtime/builtins, runtime/state, runtime/contexts, runtime/transport,
//   runtime/override, runtime/frames, runtime/unload, runtime/listeners, runtime/innertext.

function __corvex__isListedWindow(w) {
  for (var i = 0; i < __corvex__windowState.windows.length; ++i) {
    if (__corvex__windowState.windows[i] === w) {
      return true;
    }
  }
  return false;
}

// What open returned can be this window or one of its frames, too.
function __corvex__isFurtherTopWindow(w) {
  return w !== window && (!w.parent || w.parent === w);
}

function __corvex__canAccessDocument(w) {
  try {
    return !!(w.document.attachEvent || w.document.addEventListener);
  } catch (e) {
    return false;
  }
}

// Whether a window is still on its way to its page.
function __corvex__isBlankWindow(w, address) {
  var isOther = window.__corvex__mozilla || window.__corvex__safari || window.__corvex__googlechrome ||
                window.__corvex__chromiumbased;
  return !!isOther && (__corvex__contextOf(w) === "" || address.indexOf("about:blank") !== -1);
}

// The assignable handlers, unlike in a frame: what the page set there is lost.
function __corvex__listenInWindow(w) {
  var handler = __corvex__quiet(function (e) {
    __corvex__logEventByWindow(e, w);
  });
  w.document.onkeyup = handler;
  w.document.onmousedown = handler;
  w.document.ondblclick = handler;
  w.document.onclick = handler;
  __corvex__setupInnerTextFunctions(w);
}

// Old Internet Explorer. With several windows, each handler speaks for the newest one.
function __corvex__listenInOldWindow(w) {
  var handler = __corvex__quiet(function () {
    __corvex__logEventByWindow(null, __corvex__windowState.windows[__corvex__windowState.wcnt]);
  });
  w.document.onkeyup = handler;
  w.document.onmousedown = handler;
  w.document.ondblclick = handler;
  w.document.onclick = handler;
  w.onunload = function () {
    __corvex__triggerUnloadEventHandler(w);
    handler();
  };
  w.document.attachEvent("onmousemove", __corvex__quietMousemove);
}

function __corvex__hookInWindow(w) {
  var address;
  try {
    address = String(w.location);
  } catch (e) {
    // A page of another origin, which is not tried again.
    return;
  }
  if (__corvex__isListedWindow(w) || !__corvex__isFurtherTopWindow(w)) {
    return;
  }
  if (__corvex__isBlankWindow(w, address) || !__corvex__canAccessDocument(w)) {
    if (!w.closed) {
      __corvex__later(function () {
        __corvex__hookInWindow(w);
      }, 1000);
    }
    return;
  }
  __corvex__windowState.wcnt += 1;
  __corvex__windowState.windows[__corvex__windowState.wcnt] = w;
  try {
    if (w.document.addEventListener) {
      __corvex__listenInWindow(w);
    } else {
      __corvex__listenInOldWindow(w);
    }
  } catch (e) {
    // The window left its page meanwhile.
  }
  __corvex__hookupWindow(w);
}

function __corvex__hookFramesLater(w) {
  __corvex__windowState.framewin = w;
  __corvex__later(function () {
    __corvex__hookFrames(w);
  }, 2000);
}

function __corvex__rehookWindow(w) {
  try {
    __corvex__hookInWindow(w);
    __corvex__hookFramesLater(w);
  } catch (e) {
    // A closed window.
  }
}

function __corvex__announceWindow(w) {
  var ctxwin = __corvex__windowState.ctxwin;
  __corvex__windowState.ctxwin = w;
  __corvex__sendQuietly("eventHandler" + __corvex__natives.milliseconds() + "&name=WindowOpened", true);
  __corvex__windowState.ctxwin = ctxwin;
}

// Windows opened by name are not remembered: a variable would not outlive the next page.
function __corvex__open(a1, a2, a3, a4) {
  var args = [a1, a2, a3, a4];
  while (args.length > 1 && !args[args.length - 1]) {
    args.pop();
  }
  var isNested = __corvex__isInsideStored("__corvex__reallyOpen");
  var w = __corvex__callStored(this, "__corvex__reallyOpen", args);
  if (w && !isNested) {
    __corvex__announceWindow(w);
    if (__corvex__isFurtherTopWindow(w)) {
      __corvex__rehookWindow(w);
    }
  }
  return w;
}
