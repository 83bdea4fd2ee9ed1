// Gives: the event handlers of documents and windows, picking with the pointer, and the touch listeners.
// Needs: runtime/natives, runtime/builtins, runtime/state, runtime/nodes, runtime/framewalk, runtime/contexts,
//   runtime/text, runtime/eventobject, runtime/transport, runtime/longpoll, runtime/listeners, names/entry,
//   geometry/screenrect, visibility, touch.

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

// A canvas that is driven, recorded and picked in by the hook inside the application which paints it.
function __corvex__isHookedWasmCanvas(elem) {
  return elem.tagName === "CANVAS" && __corvex__listContains(elem.className, "corvex-qt-application-screen");
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

function __corvex__enterEventContext(win, d, source) {
  if (d) {
    __corvex__windowState.ctxwin = __corvex__findDocument(win, d) || __corvex__windowState.ctxwin;
    return;
  }
  try {
    var found = __corvex__findDocument(win, __corvex__getDocumentForNode(source));
    __corvex__windowState.ctxwin = found || __corvex__windowState.ctxwin;
  } catch (e) {
    // The source is no node, or its document is out of reach: the context stays.
  }
}

// e: the event, where the browser passes one; d: the document that the listener sits on, for a frame's document.
// There is no early exit while nothing is recorded: replay of some pages lives on what happens here.
function __corvex__handler(e, d) {
  var cw = __corvex__windowState.ctxwin;
  var current = __corvex__findCurrentEvent(e);
  var ev = current.event;
  if (!ev || !current.win) {
    return true;
  }
  if (ev.type === "mousedown" || ev.type === "click") {
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
    __corvex__windowState.ctxwin = cw;
  }
  return result;
}

function __corvex__isSelectionElement(o) {
  return !!o && typeof o.type === "string" && o.type.indexOf("select") !== -1;
}

// While it picks, the page never sees the event.
function __corvex__swallowEvent(e) {
  e.cancelBubble = true;
  if (e.stopPropagation) {
    e.stopPropagation();
  }
  if (e.preventDefault) {
    e.preventDefault();
  }
}

// The text passes through the head function twice, and the driver knows it so.
function __corvex__sendUnload(e) {
  if (window.__corvex__no_unload) {
    return;
  }
  try {
    var url = __corvex__getLogEventUrl("event=unload&object=[Window]");
    // Through a proxy, the message might never arrive if the page did not wait for it.
    __corvex__sendLogEventData(e, url, !window.top.__corvex__proxy);
  } catch (ex) {
    // Browsers may refuse requests of a page that goes away.
  }
}

function __corvex__logUnload(e) {
  __corvex__stopLongPoll();
  var handler = window.old_onunload;
  // Cleared before the call, which could lead back here.
  window.old_onunload = undefined;
  try {
    if (handler) {
      __corvex__natives.apply(handler, window, [e]);
    }
  } finally {
    __corvex__sendUnload(e);
  }
}

// e: an event, or the text "__clear__".
function __corvex__logEvent(e, w) {
  if (!e) {
    return undefined;
  }
  if (e.type === "unload") {
    __corvex__logUnload(e);
    return undefined;
  }
  var isPicking = !!window.__corvex__pickObject;
  var srcElem = __corvex__srcElement(e);
  var o = isPicking ? __corvex__pickableObject(srcElem) : __corvex__eventObject(srcElem);
  var text = "event=";
  if (__corvex__isHookedWasmCanvas(srcElem)) {
    return undefined;
  }
  if (__corvex__isSelectionElement(o)) {
    __corvex__recordingState.lastSelectEvent = e;
    __corvex__recordingState.lastSelectEventObject = o;
  }
  if (isPicking) {
    __corvex__swallowEvent(e);
    if (o && (e.type === "mousedown" || e.type === "click")) {
      __corvex__logPickEvent(e, o, text);
    }
    return false;
  }
  return window.__corvex__ie ? undefined : true;
}

// For the handler properties of opened windows. e: null where the browser passes no event.
function __corvex__logEventByWindow(e, w) {
  var ev = __corvex__determineEventObject(e, w);
  if (!__corvex__isEventObject(ev)) {
    ev = __corvex__determineEventObject(ev, window);
  }
  var ctxwin = __corvex__windowState.ctxwin;
  if (w.document) {
    __corvex__windowState.ctxwin = w;
  }
  if (ev && (ev.type === "mousedown" || ev.type === "click")) {
    __corvex__install__handler(ev, w);
  }
  __corvex__logEvent(ev, w);
  __corvex__windowState.ctxwin = ctxwin;
}

// Change handler of old Internet Explorer for selection elements.
function __corvex__onChangeHandler() {
  var source = __corvex__recordingState.lastSelectEventObject;
  var doc = __corvex__getDocumentForNode(source);
  if (source && doc && __corvex__recordingState.lastSelectEvent) {
    var ev = doc.createEventObject(__corvex__recordingState.lastSelectEvent);
    ev.type = "change";
    ev.secElement = source;
    __corvex__handler(__corvex__recordingState.lastSelectEvent, source);
  }
  // A later widget of another kind must not run into them.
  __corvex__recordingState.lastSelectEvent = null;
  __corvex__recordingState.lastSelectEventObject = null;
}

function __corvex__tabIdLogEventParameter() {
  var id = window.top.__corvex__browsertabid;
  return id ? "&tabId=" + id : "";
}

// url: the text to put the object behind.
function __corvex__logPickEvent(e, o, url) {
  var node = o;
  var nodeType = __corvex__nodeReader.nodeType(node);
  while (node && nodeType !== 1 && nodeType !== 9) {
    node = __corvex__nodeReader.parentNode(node);
    nodeType = node && __corvex__nodeReader.nodeType(node);
  }
  var text = url + "pickedObject&object=" + __corvex__nameOf(node) + __corvex__tabIdLogEventParameter();
  // So late that the click after a press is swallowed, too.
  __corvex__later(function () {
    window.__corvex__pickObject = false;
  }, 50);
  __corvex__sendLogEventData(e, text, true);
}

function __corvex__isFunction(obj) {
  return typeof obj === "function" || __corvex__natives.classOf(obj) === "[object Function]";
}

function __corvex__pickableObject(elem) {
  var hooks = top.__corvex__pickableObjectHooks || [];
  for (var i = 0; i < hooks.length; ++i) {
    try {
      var answer = __corvex__isFunction(hooks[i]) && hooks[i](elem);
      if (answer) {
        return answer;
      }
    } catch (e) {
      // No answer.
    }
  }
  var better = __corvex__findUsableParentElement(elem);
  return better && !__corvex__isDocumentNode(elem) && __corvex__isVisible(elem) ? better : elem;
}

// The name of the message is misspelled, and the driver knows it so.
function __corvex__hoverElement() {
  __corvex__recordingState.hoverTimer = null;
  try {
    var rect = __corvex__getScreenRect(__corvex__recordingState.mouseElement);
    __corvex__sendXMLHttpRequest(document, "highlighteWidget&info=" + rect + "," +
      __corvex__nameOf(__corvex__recordingState.mouseElement, true) + "&" + __corvex__natives.milliseconds(), true);
  } catch (e) {
    // The element is gone.
  }
}

function __corvex__eventOfPointer(e) {
  var ev = __corvex__determineEventObject(e, window);
  var windows = ev ? [] : __corvex__contextList();
  for (var i = 0; !ev && i < windows.length; ++i) {
    ev = __corvex__determineEventObject(undefined, windows[i]);
  }
  return ev;
}

function __corvex__mousemove(e) {
  if (!window.__corvex__pickObject) {
    return;
  }
  var source = __corvex__srcElement(__corvex__eventOfPointer(e));
  if (!source || __corvex__isHookedWasmCanvas(source)) {
    return;
  }
  var picked = __corvex__pickableObject(source);
  if (!picked || picked === __corvex__recordingState.selectedObject) {
    return;
  }
  __corvex__recordingState.selectedObject = picked;
  __corvex__recordingState.mouseElement = picked;
  // A pointer that crosses many objects fast causes one message.
  if (__corvex__recordingState.hoverTimer) {
    __corvex__natives.clearTimeout(__corvex__recordingState.hoverTimer);
  }
  __corvex__recordingState.hoverTimer = __corvex__natives.setTimeout(__corvex__hoverElement, 50);
}

function __corvex__touchstart(ev) {
  if (!ev) {
    return true;
  }
  if (window.__corvex__pickObject || window.__corvex__recording) {
    window.top.__corvex.lastTouches = ev.targetTouches;
  }
  if (!window.__corvex__pickObject) {
    return true;
  }
  __corvex__swallowEvent(ev);
  return false;
}

// A swipe from one object to another is none.
function __corvex__isTouchOfOneObject(ended, started) {
  return !!ended && !!started && ended.length > 0 && ended.length === started.length &&
         ended[0].target === started[0].target;
}

function __corvex__touchend(ev) {
  if (!ev || !(window.top.__corvex__pickObject || window.top.__corvex__recording)) {
    return true;
  }
  if (!__corvex__isTouchOfOneObject(ev.changedTouches, window.top.__corvex.lastTouches)) {
    return true;
  }
  var touch = ev.changedTouches[0];
  if (__corvex__isHookedWasmCanvas(touch.target)) {
    return undefined;
  }
  window.top.__corvex.lastTouches = null;
  if (window.top.__corvex__pickObject) {
    __corvex__swallowEvent(ev);
    __corvex__logPickEvent(touch, touch.target, "event=");
    return false;
  }
  return true;
}

function __corvex__hookupTouchEvents(win) {
  try {
    win.document.addEventListener("touchstart", __corvex__quietTouchstart, true);
    win.document.addEventListener("touchend", __corvex__quietTouchend, true);
  } catch (e) {
    // A browser without listeners has no touches either.
  }
}
