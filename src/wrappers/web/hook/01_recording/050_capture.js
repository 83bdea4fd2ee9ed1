// Gives: the handlers of the events of documents and windows, and the messages that the driver gets of them.
// Needs: recording/event, recording/payload, recording/picking, recording/overlay, recording/fields, runtime/natives,
//   runtime/state, runtime/nodes, runtime/contexts, runtime/text, runtime/eventobject, runtime/transport,
//   runtime/longpoll, runtime/listeners, touch.

function __corvex__enterEventContext(win, d, source) {
  try {
    var found = __corvex__findDocument(win, d || __corvex__getDocumentForNode(source));
    __corvex__windowState.ctxwin = found || __corvex__windowState.ctxwin;
  } catch (e) {
    // The source is no node, or its document is out of reach: the context stays.
  }
}

function __corvex__answerOfOverlay(source, ev) {
  try {
    if (window.__corvex__enableObjectInfoOverlay) {
      return __corvex__checkForObjectOverlayRelatedEvent(source, ev);
    }
  } catch (e) {
    // Sources can be strange, and the event must not be lost.
  }
  return undefined;
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
  var ofOverlay = __corvex__answerOfOverlay(source, ev);
  if (ofOverlay !== undefined) {
    return ofOverlay;
  }
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

function __corvex__isBackbaseSelect(o, srcElem) {
  return __corvex__hasClass(o, "b-select") && !__corvex__hasClass(srcElem, "b-option");
}

// Parts of Backbase widgets that are recorded as another event, or as one of another object.
function __corvex__isRecordedOtherwise(e, o, srcElem) {
  var className = __corvex__nodeReader.className(o);
  if (!className) {
    return false;
  }
  // A spinner is recorded at the press.
  var isSpinnerButton = __corvex__hasClass(o, "b-spinner-arrowup") || __corvex__hasClass(o, "b-spinner-arrowdown");
  return className === "b-combobox-button" || __corvex__hasClass(o, "b-select-button") ||
    __corvex__hasClass(srcElem, "b-select-button") || __corvex__isBackbaseSelect(o, srcElem) ||
    (e.type === "click" && isSpinnerButton);
}

// A double click on a label counts for its control, which is somewhere else.
function __corvex__besideItem(e, o, srcElem) {
  var isBeside = e.type === "dblclick" && !!o &&
    __corvex__labelledControl(__corvex__findUsableParentElement(srcElem)) === o;
  return isBeside ? "&beside" : "";
}

// The items that follow "event="; the empty text for what others record.
function __corvex__recordedText(e, w, srcElem, o) {
  // An applet is recorded by what hooks its Java side.
  if (o && (__corvex__isRecordedOtherwise(e, o, srcElem) || __corvex__nodeReader.tagName(o) === "APPLET" ||
            __corvex__isHookedWasmCanvas(o))) {
    return "";
  }
  if (__corvex__isKeyOfComposition(e)) {
    return "";
  }
  var text = __corvex__eventToStr(e, srcElem, o) + __corvex__besideItem(e, o, srcElem) +
    __corvex__tabIdLogEventParameter();
  if (!o) {
    return text;
  }
  // The event of a selection may come through another window than the one that shows it.
  var own = __corvex__isSelectionElement(o) && __corvex__findDocument(window, __corvex__getDocumentForNode(o));
  return text + "&context=" + __corvex__contextOfForUrl(own || w) + __corvex__fields.items;
}

// Firefox drops the open requests of a page that goes away: before version 68 the page waits until the message is taken. A
// key must not hold up the next.
function __corvex__sendsWithoutWaiting(e) {
  if (__corvex__fields.waits) {
    return false;
  }
  return !window.top.__corvex__mozilla || window.top.__corvex.browsermajorversion >= 68 || e.type === "keyup" ||
    e.type === "keydown";
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
  var o = isPicking ? __corvex__pickableObject(srcElem)
    : __corvex__fields.items ? srcElem : __corvex__eventObject(srcElem);
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
  if (e === "__clear__") {
    text += "clear";
  } else if (window.__corvex__recording) {
    text += __corvex__recordedText(e, w, srcElem, o);
  }
  // No connection for an event without information.
  if (text !== "event=") {
    __corvex__sendLogEventData(e, text, __corvex__sendsWithoutWaiting(e));
    __corvex__noteTold(e, srcElem);
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
