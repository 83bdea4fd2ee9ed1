// Gives: the position of an element in its page, from walking its offset parents.
// Needs: runtime/nodes.

function __corvex__tableBorder(table) {
  var border = parseInt(table.border, 10);
  if (border > 0) {
    return border;
  }
  return isNaN(border) && table.hasAttribute("frame") ? 1 : 0;
}

function __corvex__borderInOffset(o) {
  var tagName = __corvex__nodeReader.tagName(o);
  if (window.__corvex__ie) {
    return tagName === "TABLE" || tagName === "BODY" ? { x: 0, y: 0 } : { x: o.clientLeft, y: o.clientTop };
  }
  var border = tagName === "TABLE" ? __corvex__tableBorder(o) : 0;
  return { x: border, y: border };
}

// The box in its page of an element that has no offsets, as those of SVG have none; undefined for all others.
function __corvex__boxWithoutOffsets(elem) {
  if (!elem || elem.offsetLeft !== undefined || !elem.getBoundingClientRect) {
    return undefined;
  }
  var bounds = __corvex__askNode.Element.getBoundingClientRect(elem);
  var view = __corvex__nodeReader.ownerDocument(elem).defaultView;
  return {
    x: bounds.left + view.pageXOffset,
    y: bounds.top + view.pageYOffset,
    width: bounds.right - bounds.left,
    height: bounds.bottom - bounds.top
  };
}

function __corvex__elementPos(o) {
  var box = __corvex__boxWithoutOffsets(o);
  if (box) {
    return { x: box.x, y: box.y };
  }
  var pos = { x: 0, y: 0 };
  for (var elem = o; elem; elem = __corvex__nodeReader.offsetParent(elem)) {
    var border = __corvex__borderInOffset(elem);
    pos.x += elem.offsetLeft + border.x;
    pos.y += elem.offsetTop + border.y;
  }
  return pos;
}
