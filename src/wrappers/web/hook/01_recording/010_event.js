// Gives: the event that is going on, whatever way the browser tells of it, and the window that it belongs to.
// Needs: runtime/nodes, runtime/framewalk, runtime/contexts, runtime/text, runtime/eventobject.

function __corvex__isEventObject(ev) {
  return !!ev && typeof ev.type === "string" && __corvex__srcElement(ev) !== undefined;
}

function __corvex__determineEventObject(eventParameter, win) {
  if (__corvex__isEventObject(eventParameter)) {
    return eventParameter;
  }
  if (win && __corvex__isEventObject(win.event)) {
    return win.event;
  }
  return null;
}

function __corvex__findEventInFrameWindowsForOldIE(w) {
  return __corvex__firstInFrames(w.document, function (frameWindow) {
    return __corvex__isEventObject(frameWindow.event) && frameWindow.event;
  });
}

// The event that is going on and its window; both undefined where there is none.
function __corvex__findCurrentEvent(e) {
  var ev = __corvex__determineEventObject(e, window) || __corvex__findEventInFrameWindowsForOldIE(window);
  if (ev) {
    return { event: ev, win: window };
  }
  var contexts = __corvex__contextList();
  for (var i = 0; i < contexts.length; ++i) {
    if (typeof contexts[i] === "function") {
      continue;
    }
    ev = __corvex__findEventInFrameWindowsForOldIE(contexts[i]);
    if (ev) {
      return { event: ev, win: contexts[i] };
    }
  }
  return { event: undefined, win: undefined };
}

function __corvex__eventOfPointer(e) {
  var ev = __corvex__determineEventObject(e, window);
  var windows = ev ? [] : __corvex__contextList();
  for (var i = 0; !ev && i < windows.length; ++i) {
    ev = __corvex__determineEventObject(undefined, windows[i]);
  }
  return ev;
}

// The window of the document in which the element stands; win where the element is in no document below it.
function __corvex__windowOfSource(win, elem) {
  if (!elem) {
    return win;
  }
  var root = elem;
  while (__corvex__nodeReader.parentNode(root)) {
    root = __corvex__nodeReader.parentNode(root);
  }
  return root === win.document ? win : __corvex__findDocument(win, root) || win;
}

// A canvas that is driven, recorded and picked in by the hook inside the application which paints it.
function __corvex__isHookedWasmCanvas(elem) {
  return elem.tagName === "CANVAS" && __corvex__listContains(elem.className, "corvex-qt-application-screen");
}
