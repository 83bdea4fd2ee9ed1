// Gives: the touch listeners: a tap is recorded, or picks, where it ends on the object that it began on.
// Needs: recording/event, recording/payload, recording/picking, runtime/contexts, runtime/eventobject,
//   runtime/transport, runtime/listeners, touch.

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

function __corvex__sendTouch(ev, target) {
  var text = "event=" + __corvex__eventToStr(ev, target, __corvex__eventObject(target)) +
    "&context=" + __corvex__contextOfForUrl(__corvex__currentContext(target)) + __corvex__tabIdLogEventParameter();
  __corvex__sendLogEventData(ev, text, true);
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
  if (window.top.__corvex__recording && window.top.__corvex__recordTouchEvents()) {
    __corvex__sendTouch(ev, touch.target);
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
