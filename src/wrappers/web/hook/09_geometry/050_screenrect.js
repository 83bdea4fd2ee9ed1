// Gives: the rectangle of an element on the screen, in device pixels and clipped to the view.
// Needs: runtime/nodes, runtime/contexts, browsers, geometry/clientrect, geometry/viewport.

function __corvex__invalidRect() {
  return { x: -1, y: -1, width: -1, height: -1 };
}

function __corvex__applyBridgeZoom(rectOrPos, fields) {
  if (!__corvex__usesEventLoggerBridge() || !window.__corvex__eventLoggerBridge.zoomScale) {
    return;
  }
  var scale = window.__corvex__eventLoggerBridge.zoomScale();
  for (var i = 0; i < fields.length; ++i) {
    rectOrPos[fields[i]] *= scale;
  }
}

// Firefox before 3.6 tells no screen position by other means. True where the accessible gave one.
function __corvex__takeAccessibleBounds(elem, rect) {
  try {
    var retrieval = Components.classes["@mozilla.org/accessibleRetrieval;1"]
      .getService(Components.interfaces.nsIAccessibleRetrieval);
    var accessible = retrieval.getAccessibleFor(elem);
    if (!accessible) {
      return false;
    }
    var x = {}, y = {}, w = {}, h = {};
    accessible.getBounds(x, y, w, h);
    rect.x = x.value;
    rect.y = y.value;
    // New fields by design: width and height keep their client values.
    rect.w = w.value;
    rect.h = h.value;
    return true;
  } catch (e) {
    return false;
  }
}

// Cuts the far side on one axis.
function __corvex__clipAtViewEnd(rect, position, size, viewStart, viewSize) {
  if (rect[position] + rect[size] > viewStart + viewSize) {
    rect[size] = viewSize - (rect[position] - viewStart);
  }
}

// The element is not scrolled into view: one that is scrolled away has the invalid rectangle.
function __corvex__getScreenRectAsObject(elem) {
  var rect = __corvex__getClientBoundingRect(elem, true);
  var win = __corvex__currentContext(elem);
  __corvex__applyDevicePixelRatio(rect, win);
  __corvex__applyBridgeZoom(rect, ["x", "y", "width", "height"]);
  if (win.top.__corvex__mozilla && win.top.mozInnerScreenX === undefined &&
      __corvex__takeAccessibleBounds(elem, rect)) {
    return rect;
  }
  if (win.top.__corvex__ie && (rect.width === 0 || rect.height === 0)) {
    __corvex__fixSizeForIE(elem, win, rect);
  }
  var elemDoc = __corvex__getDocumentForNode(elem);
  var screenTopLeft = __corvex__getViewportScreenPosition(elemDoc, win);
  rect.x += rect.x >= 0 ? screenTopLeft.x : 0;
  rect.y += rect.y >= 0 ? screenTopLeft.y : 0;
  var viewportSize = window.top.__corvex.getViewPortSize(elemDoc, win);
  __corvex__applyDevicePixelRatio(viewportSize, win);
  __corvex__applyBridgeZoom(viewportSize, ["x", "y"]);
  if (rect.width <= 0 || rect.height <= 0 || rect.x > screenTopLeft.x + viewportSize.x ||
      rect.y > screenTopLeft.y + viewportSize.y) {
    return __corvex__invalidRect();
  }
  __corvex__clipAtViewEnd(rect, "x", "width", screenTopLeft.x, viewportSize.x);
  __corvex__clipAtViewEnd(rect, "y", "height", screenTopLeft.y, viewportSize.y);
  return rect;
}

function __corvex__getRectAsString(rect) {
  return [Math.round(rect.x), Math.round(rect.y), Math.round(rect.width), Math.round(rect.height)].join(",");
}

function __corvex__getScreenRect(elem) {
  return __corvex__getRectAsString(__corvex__getScreenRectAsObject(elem));
}
