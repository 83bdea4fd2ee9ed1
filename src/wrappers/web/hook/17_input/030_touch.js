// Gives: the order of touch events of a tap.
// Needs: runtime/natives, browsers, geometry/scroll, geometry/clientrect, geometry/screenrect.

function __corvex__makeTouchEvent(evtType, o, touches, ctrl, shift, alt) {
  try {
    var touchevent = o.ownerDocument.createEvent("TouchEvent");
    var args = [evtType, true, true, o.ownerDocument.defaultView, 1, 0, 0, 0, 0, ctrl, alt, shift, false, touches,
      touches, touches];
    if (__corvex__isCocoaTouchWebViewBrowser() || __corvex__isProxyOnMobileDevice()) {
      args.push(1.0, 0.0);
    }
    __corvex__natives.apply(touchevent.initTouchEvent, touchevent, args);
    return touchevent;
  } catch (e) {
    return new TouchEvent(evtType, {
      cancelable: true,
      bubbles: true,
      composed: true,
      touches: [touches[0]],
      targetTouches: [touches[0]],
      changedTouches: [touches[0]]
    });
  }
}

function __corvex__makeTouchPoint(o, x, y) {
  var boundingRect = __corvex__getClientBoundingRect(o);
  var screenRect = __corvex__getScreenRectAsObject(o);
  var checkedX = x === undefined ? 0 : x;
  var checkedY = y === undefined ? 0 : y;
  var checkedScreenX = screenRect.x === -1 ? 0 : screenRect.x;
  var checkedScreenY = screenRect.y === -1 ? 0 : screenRect.y;
  var pageX = boundingRect.x + checkedX;
  var pageY = boundingRect.y + checkedY;
  return new Touch({
    identifier: 0,
    target: o,
    clientX: pageX - __corvex__getPageOffsetX(),
    clientY: pageY - __corvex__getPageOffsetY(),
    pageX: pageX,
    pageY: pageY,
    screenX: checkedScreenX + checkedX,
    screenY: checkedScreenY + checkedY
  });
}

// True if a mouse click must follow: no listener prevented the default.
function __corvex__clickViaTouchEvents(o, ctrl, shift, alt, x, y) {
  // True if a listener prevented the default, which no interface of old engines tells.
  function __corvex__sendTouchEvent(evtType, target, touches) {
    var prevented = false;
    var touchevent = __corvex__makeTouchEvent(evtType, target, touches, ctrl, shift, alt);
    touchevent.origPreventDefault = touchevent.preventDefault;
    touchevent.preventDefault = function () {
      prevented = true;
      touchevent.origPreventDefault();
    };
    target.dispatchEvent(touchevent);
    return prevented;
  }

  var touches = [__corvex__makeTouchPoint(o, x, y)];
  var startPrevented = __corvex__sendTouchEvent("touchstart", o, touches);
  var endPrevented = __corvex__sendTouchEvent("touchend", o, touches);
  return !startPrevented && !endPrevented;
}
