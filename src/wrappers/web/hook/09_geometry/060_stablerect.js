// Gives: the rectangle behind the properties x, y, width, height.
// Needs: runtime/nodes, runtime/contexts, runtime/elementpos, geometry/frameoffset.

// Stable rather than correct: it ignores scrolling, so that recorded values do not depend on it.
window.top.__corvex.getElementRectAsObject = function (e) {
  var win = __corvex__currentContext(e);
  var top = win.top;
  var rect = { x: top.screenLeft, y: top.screenTop, width: e.offsetWidth, height: e.offsetHeight };
  if (win.outerWidth) {
    rect.x = top.screenX + top.outerWidth - top.innerWidth;
    rect.y = top.screenY + top.outerHeight - top.innerHeight;
  }
  var frameOffset = __corvex__getFrameOffset(win);
  rect.x += frameOffset.x;
  rect.y += frameOffset.y;
  if (window.__corvex__mozilla && window.__corvex__os === "Windows") {
    rect.y -= 25;
    rect.x -= 4;
  } else if (window.__corvex__mozilla && window.__corvex__os === "MacOSX") {
    rect.y -= 18;
  }
  if (window.__corvex__safari || window.__corvex__safariproxy) {
    rect.y -= 13;
    rect.x += 3;
  }
  var box = __corvex__boxWithoutOffsets(e);
  if (box) {
    return { x: rect.x + box.x, y: rect.y + box.y, width: box.width, height: box.height };
  }
  for (var elem = e; elem; elem = __corvex__nodeReader.offsetParent(elem)) {
    rect.x += elem.offsetLeft;
    rect.y += elem.offsetTop;
  }
  return rect;
};
