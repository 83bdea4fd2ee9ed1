// Gives: the choice of the event model, and one synthetic mouse, context-menu or change event.
// Needs: runtime/elementpos, geometry/scroll.

top.__corvex__useIE8AndOlderEventDispatchingOverride__hooks = [];

function __corvex__oldEventModelIsForced(object) {
  var hooks = top.__corvex__useIE8AndOlderEventDispatchingOverride__hooks;
  for (var i = 0; i < hooks.length; ++i) {
    try {
      if (hooks[i](object)) {
        return true;
      }
    } catch (e) {
      // The next hook decides.
    }
  }
  return false;
}

// The test is on the script's own document, whatever document the object is in.
function __corvex__useIE8AndOlderEventDispatching(object) {
  try {
    if (document.createEvent && document.dispatchEvent) {
      return !!top.window.__corvex__ie && __corvex__oldEventModelIsForced(object);
    }
  } catch (e) {
    // Taken as the old model.
  }
  return true;
}

// From the scripts' numbering: 1 left, 2 right, 4 middle. Old Internet Explorer has the same.
function __corvex__eventButton(button) {
  if (window.__corvex__ie && !(window.top.__corvex__ie__version >= 9)) {
    return button;
  }
  return { 1: 0, 2: 2, 4: 1 }[button];
}

function __corvex__dispatchMouseEvent(o, ev, ctrl, shift, alt, clientX, clientY, button) {
  var evt;
  try {
    evt = new MouseEvent(ev, { composed: true });
  } catch (e) {
    evt = o.ownerDocument.createEvent("MouseEvents");
  }
  var relatedTarget = ev === "mouseout" || ev === "mouseover" ? o.ownerDocument.body : null;
  evt.initMouseEvent(ev, true, true, document.defaultView, 1, 0, 0, clientX, clientY, ctrl, alt, shift, false, button,
    relatedTarget);
  o.dispatchEvent(evt);
}

function __corvex__fireOldMouseEvent(o, ev, ctrl, shift, alt, clientX, clientY, button) {
  var evt = o.ownerDocument.createEventObject();
  evt.clientX = clientX;
  evt.clientY = clientY;
  evt.button = button;
  if (ctrl) {
    evt.ctrlKey = true;
  }
  if (shift) {
    evt.shiftKey = true;
  }
  if (alt) {
    evt.altKey = true;
  }
  if (ev === "mouseout") {
    evt.toElement = document.body;
    evt.fromElement = o;
  } else if (ev === "mouseover") {
    evt.fromElement = document.body;
    evt.toElement = o;
  }
  o.fireEvent("on" + ev, evt);
}

// x, y: pixels from the element's top left corner; falsy means 5. A falsy button means the left one.
function __corvex__sendMouseEvent(o, ev, ctrl, shift, alt, x, y, button) {
  if (!o) {
    return;
  }
  try {
    var xy = __corvex__elementPos(o);
    var clientX = xy.x + (x || 5) - __corvex__getPageOffsetX();
    var clientY = xy.y + (y || 5) - __corvex__getPageOffsetY();
    var send = __corvex__useIE8AndOlderEventDispatching(o) ? __corvex__fireOldMouseEvent : __corvex__dispatchMouseEvent;
    send(o, ev, ctrl, shift, alt, clientX, clientY, __corvex__eventButton(button || 1));
  } catch (e) {
    // The sequence goes on with its next event.
  }
}

function __corvex__sendMouseOut(object) {
  __corvex__sendMouseEvent(object, "mouseout", false, false, false, 0, 0, 0);
}

function __corvex__openContextMenu(o, ctrl, shift, alt, x, y) {
  if (__corvex__useIE8AndOlderEventDispatching(o)) {
    o.fireEvent("oncontextmenu", document.createEventObject());
  } else {
    __corvex__sendMouseEvent(o, "contextmenu", ctrl, shift, alt, x, y, 2);
  }
}

function __corvex__sendChangeEvent(e) {
  try {
    var ev;
    if (__corvex__useIE8AndOlderEventDispatching(e)) {
      ev = e.ownerDocument.createEventObject();
      ev.type = "change";
      e.fireEvent("onchange", ev);
    } else {
      ev = e.ownerDocument.createEvent("HTMLEvents");
      ev.initEvent("change", true, false);
      e.dispatchEvent(ev);
    }
  } catch (ex) {
    // The value is set all the same.
  }
}
