// Gives: the rectangle of an element in its own frame.
// Needs: runtime/nodes.

function __corvex__nativeClientRect(elem) {
  if (__corvex__nodeReader.nodeType(elem) === 1 && __corvex__nodeReader.tagName(elem) === "A") {
    try {
      var rects = __corvex__askNode.Element.getClientRects(elem);
      // The bounding rectangle of a wrapped link would be too large.
      if (rects.length > 1) {
        return rects[0];
      }
    } catch (e) {
      // The bounding rectangle serves.
    }
  }
  try {
    return __corvex__askNode.Element.getBoundingClientRect(elem);
  } catch (e) {
    // A document has none.
    return null;
  }
}

// Cuts off what lies before 0 on one axis; -1 in both fields where nothing remains.
function __corvex__dropBeforeOrigin(rect, position, size) {
  if (!(rect[position] < 0)) {
    return;
  }
  if (rect[position] + rect[size] > 0) {
    rect[size] += rect[position];
    rect[position] = 0;
  } else {
    rect[position] = -1;
    rect[size] = -1;
  }
}

function __corvex__getClientBoundingRect(elem, dropOutOfViewBoundingRectParts) {
  var rect = { x: 0, y: 0, width: 0, height: 0 };
  var bounds = __corvex__nativeClientRect(elem);
  if (!bounds) {
    return rect;
  }
  if (bounds.width) {
    rect = { x: bounds.left, y: bounds.top, width: bounds.width, height: bounds.height };
  } else if (bounds.bottom !== undefined) {
    rect = { x: bounds.left, y: bounds.top, width: bounds.right - bounds.left, height: bounds.bottom - bounds.top };
  }
  if (dropOutOfViewBoundingRectParts !== false) {
    __corvex__dropBeforeOrigin(rect, "x", "width");
    __corvex__dropBeforeOrigin(rect, "y", "height");
  }
  return rect;
}

// Changes the page for a moment: floating elements report no size there.
function __corvex__fixSizeForIE(elem, win, rect) {
  try {
    var style = elem.style;
    var saved = { position: style.position, display: style.display, visibility: style.visibility };
    style.position = "absolute";
    style.display = "block";
    style.visibility = "hidden";
    var measured = __corvex__getClientBoundingRect(elem);
    style.position = saved.position;
    style.display = saved.display;
    style.visibility = saved.visibility;
    rect.width = measured.width;
    rect.height = measured.height;
  } catch (e) {
    // A document has no style.
  }
}
