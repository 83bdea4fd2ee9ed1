// Gives: the order of mouse events of a click on a generic element, a button and a link, and of a double click.
// Needs: runtime/natives, runtime/state, runtime/override, input/mouseevents.

function __corvex__hookupViewOf(o) {
  if (o.ownerDocument && o.ownerDocument.defaultView) {
    __corvex__hookupWindow(o.ownerDocument.defaultView);
  }
}

// args: what the hooks get. True where a hook did the click.
function __corvex__runClickHooks(args) {
  var hooks = window.__corvex__click__hooks;
  for (var i = 0; i < hooks.length; ++i) {
    if (__corvex__natives.apply(hooks[i], window, args)) {
      return true;
    }
  }
  return false;
}

function __corvex__sendClick(o, ctrl, shift, alt, x, y, button) {
  if (window.__corvex__ie && o.click) {
    o.click();
  } else {
    __corvex__sendMouseEvent(o, "click", ctrl, shift, alt, x, y, button);
  }
}

// "mouseup" comes after "click", unlike with a physical mouse: pages and the recorder see no other order.
function __corvex__clickViaDOM2Events(o, ctrl, shift, alt, x, y, button) {
  __corvex__hookupViewOf(o);
  if (__corvex__runClickHooks([o, ctrl, shift, alt, x, y, button])) {
    return;
  }
  try {
    if (o.focus) {
      o.focus();
    }
  } catch (e) {
    // What takes no focus can be clicked.
  }
  __corvex__sendMouseEvent(o, "mouseover", ctrl, shift, alt, x, y, button);
  __corvex__sendMouseEvent(o, "mousedown", ctrl, shift, alt, x, y, button);
  if (button == 2) { // eslint-disable-line eqeqeq -- extensions may give it as text
    __corvex__openContextMenu(o, ctrl, shift, alt, x, y);
  } else {
    __corvex__sendClick(o, ctrl, shift, alt, x, y, button);
  }
  __corvex__sendMouseEvent(o, "mouseup", ctrl, shift, alt, x, y, button);
  __corvex__sendMouseOut(o);
}

function __corvex__clickButtonViaDOM2Events(o, ctrl, shift, alt, x, y, btn) {
  __corvex__hookupViewOf(o);
  try {
    o.focus();
  } catch (e) {
    // What takes no focus can be clicked.
  }
  try {
    __corvex__sendMouseEvent(o, "mousedown", ctrl, shift, alt, x, y, btn);
    if (window.__corvex__ie || window.__corvex__safari || top.__corvex__safariproxy) {
      if (o.submit) {
        o.submit();
      } else if (o.click) {
        o.click();
      }
    } else {
      __corvex__sendMouseEvent(o, "click", ctrl, shift, alt, x, y, btn);
    }
    __corvex__sendMouseEvent(o, "mouseup", ctrl, shift, alt, x, y, btn);
    __corvex__sendMouseOut(o);
  } catch (e) {
    // A native click that fails ends the sequence.
  }
}

function __corvex__clickLinkViaDOM2Events(l) {
  __corvex__hookupWindow(l.ownerDocument.defaultView);
  try {
    __corvex__sendMouseEvent(l, "mouseover", false, false, false, 0, 0, 0);
    __corvex__sendMouseEvent(l, "mousedown", false, false, false, 0, 0, 0);
    if (window.__corvex__ie) {
      l.click();
    } else {
      __corvex__sendMouseEvent(l, "click", false, false, false, 0, 0, 0);
    }
    __corvex__sendMouseEvent(l, "mouseup", false, false, false, 0, 0, 0);
    __corvex__sendMouseOut(l);
  } catch (e) {
    // A native click that fails ends the sequence.
  }
}

// Always the left button, and no focus. The second "mouseup" stands after "dblclick".
function __corvex__dblclick(o, ctrl, shift, alt, x, y) {
  __corvex__hookupViewOf(o);
  if (__corvex__runClickHooks([o])) {
    return;
  }
  __corvex__sendMouseEvent(o, "mouseover", ctrl, shift, alt, x, y);
  __corvex__sendMouseEvent(o, "mousedown", ctrl, shift, alt, x, y);
  __corvex__sendClick(o, ctrl, shift, alt, x, y);
  __corvex__sendMouseEvent(o, "mouseup", ctrl, shift, alt, x, y);
  __corvex__sendMouseEvent(o, "mousedown", ctrl, shift, alt, x, y);
  __corvex__sendClick(o, ctrl, shift, alt, x, y);
  __corvex__sendMouseEvent(o, "dblclick", ctrl, shift, alt, x, y);
  __corvex__sendMouseEvent(o, "mouseup", ctrl, shift, alt, x, y);
  __corvex__sendMouseOut(o);
}
