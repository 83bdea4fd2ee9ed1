// Gives: where a frame's window stands in the view, by offsets and by rectangles.
// Needs: runtime/nodes, runtime/contexts, geometry/clientrect, visibility.

function __corvex__getFrameOffset(win) {
  var offset = { x: 0, y: 0 };
  try {
    for (var w = win; ; w = w.parent) {
      for (var elem = w.frameElement; elem; elem = __corvex__nodeReader.offsetParent(elem)) {
        offset.x += elem.offsetLeft;
        offset.y += elem.offsetTop;
        // There the frame's border is not part of the offset.
        if (window.__corvex__ie) {
          offset.x += elem.clientLeft;
          offset.y += elem.clientTop;
        }
      }
      if (w === w.parent) {
        break;
      }
    }
  } catch (e) {
    // A parent of another origin: the chain ends with what was summed so far.
  }
  return offset;
}

function __corvex__frameBorder(style, property) {
  var width = Math.round(__corvex__cssToPx(style.styleProperty(property)));
  return isNaN(width) ? 0 : width;
}

function __corvex__framePositionInView(win) {
  var position = { x: 0, y: 0 };
  for (var framewin = win; framewin.frameElement; framewin = __corvex__currentContext(framewin.frameElement)) {
    // A frame partly out of its parent's view keeps its negative position.
    var rect = __corvex__getClientBoundingRect(framewin.frameElement, false);
    var style = new __corvex__styleInfo(framewin.frameElement);
    position.x += rect.x + __corvex__frameBorder(style, "borderLeftWidth");
    position.y += rect.y + __corvex__frameBorder(style, "borderTopWidth");
  }
  return position;
}
