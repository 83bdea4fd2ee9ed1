// Gives: the event handlers of documents: from a DOM event to the window and the element that it concerns.
// Needs: event objects and sources, contexts, the change-listener installer, the touch switches.

function __corvex__isEventObject(ev) {
  return !!ev && typeof ev.type == "string" && __corvex__srcElement(ev) !== undefined;
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
  var frames = window.top.__corvex.getAllFrames(w.document);
  for (var i = 0; i < frames.length; ++i) {
    try {
      var frameWindow = frames[i].contentWindow;
      if (__corvex__isEventObject(frameWindow.event)) {
        return frameWindow.event;
      }
      var nested = __corvex__findEventInFrameWindowsForOldIE(frameWindow);
      if (nested) {
        return nested;
      }
    } catch (e) {
      // A frame of another origin.
    }
  }
  return undefined;
}

// A canvas that is driven, recorded and picked in by the hook inside the application which paints it.
function __corvex__isHookedWasmCanvas(elem) {
  return elem.tagName == "CANVAS" && __corvex__listContains(elem.className, "corvex-qt-application-screen");
}

// The event that is going on and its window; both undefined where there is none.
function __corvex__findCurrentEvent(e) {
  var ev = __corvex__determineEventObject(e, window) || __corvex__findEventInFrameWindowsForOldIE(window);
  if (ev) {
    return { event: ev, win: window };
  }
  var contexts = __corvex__contextList();
  for (var i = 0; i < contexts.length; ++i) {
    if (typeof contexts[i] == "function") {
      continue;
    }
    ev = __corvex__findEventInFrameWindowsForOldIE(contexts[i]);
    if (ev) {
      return { event: ev, win: contexts[i] };
    }
  }
  return { event: undefined, win: undefined };
}

// The window of the document in which the element stands; win where the element is in no document below it.
function __corvex__windowOfSource(win, elem) {
  if (!elem) {
    return win;
  }
  var root = elem;
  while (__corvex__node.parentNode(root)) {
    root = __corvex__node.parentNode(root);
  }
  return root === win.document ? win : __corvex__findDocument(win, root) || win;
}

function __corvex__enterEventContext(win, d, source) {
  if (d) {
    window.__corvex__ctxwin = __corvex__findDocument(win, d) || window.__corvex__ctxwin;
    return;
  }
  try {
    var found = __corvex__findDocument(win, __corvex__getDocumentForNode(source));
    window.__corvex__ctxwin = found || window.__corvex__ctxwin;
  } catch (e) {
    // The source is no node, or its document is out of reach: the context stays.
  }
}

// e: the event, where the browser passes one; d: the document that the listener sits on, for a frame's document.
// There is no early exit while nothing is recorded: replay of some pages lives on what happens here.
function __corvex__handler(e, d) {
  var cw = window.__corvex__ctxwin;
  var current = __corvex__findCurrentEvent(e);
  var ev = current.event;
  if (!ev || !current.win) {
    return true;
  }
  if (ev.type == "mousedown" || ev.type == "click") {
    __corvex__install__handler(ev, cw);
    // One tap is recorded once: as the touch.
    if (window.top.__corvex__recordTouchEvents()) {
      return true;
    }
  }
  var source = __corvex__srcElement(ev);
  var w = __corvex__windowOfSource(current.win, source);
  __corvex__enterEventContext(current.win, d, source);
  var result = __corvex__logEvent(ev, w);
  if (cw) {
    window.__corvex__ctxwin = cw;
  }
  return result;
}

function __corvex__isSelectionElement(o) {
  return !!o && typeof o.type == "string" && o.type.indexOf("select") != -1;
}

function __corvex__logEvent(e, w) {
  if (!e) {
    return undefined;
  }
  var srcElem = __corvex__srcElement(e);
  var o = __corvex__eventObject(srcElem);
  if (__corvex__isHookedWasmCanvas(srcElem)) {
    return undefined;
  }
  if (__corvex__isSelectionElement(o)) {
    __corvex__lastSelectEvent = e;
    __corvex__lastSelectEventObject = o;
  }
  return window.__corvex__ie ? undefined : true;
}

// Change handler of old Internet Explorer for selection elements.
function __corvex__onChangeHandler() {
  var source = __corvex__lastSelectEventObject;
  var doc = __corvex__getDocumentForNode(source);
  if (source && doc && __corvex__lastSelectEvent) {
    var ev = doc.createEventObject(__corvex__lastSelectEvent);
    ev.type = "change";
    ev.secElement = source;
    __corvex__handler(__corvex__lastSelectEvent, source);
  }
  // A later widget of another kind must not run into them.
  __corvex__lastSelectEvent = null;
  __corvex__lastSelectEventObject = null;
}
