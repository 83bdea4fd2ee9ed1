// Gives: the rectangle of an element in an image of the full page, and the size of that page.
// Needs: runtime/nodes, runtime/contexts, runtime/elementpos, geometry/frameoffset, geometry/screenrect, visibility.

function __corvex__isClippingChildren(e) {
  var style = new __corvex__styleInfo(e);
  var properties = ["overflow", "overflowX", "overflowY"];
  for (var i = 0; i < properties.length; ++i) {
    if (/^(hidden|scroll|auto)$/.test(style.styleProperty(properties[i]))) {
      return true;
    }
  }
  return false;
}

// The offset parents up to the nearest parent that clips, and that parent.
function __corvex__hierarchyInformation(element) {
  var info = { offsetParents: [], clippingParent: null };
  var lastOffsetElement = element;
  var parent = __corvex__nodeReader.parentNode(element);
  while (parent && !__corvex__isDocumentNode(parent) && !/^(HTML|BODY)$/.test(__corvex__nodeReader.tagName(parent))) {
    if (parent === __corvex__nodeReader.offsetParent(lastOffsetElement)) {
      info.offsetParents.push(parent);
      lastOffsetElement = parent;
    }
    if (__corvex__isClippingChildren(parent)) {
      info.clippingParent = parent;
      break;
    }
    parent = __corvex__nodeReader.parentNode(parent);
  }
  return info;
}

function __corvex__isRectOutsideOfClippingElementBounds(rectangle, element) {
  return rectangle.x >= element.offsetWidth + element.scrollLeft ||
         rectangle.x + rectangle.width <= element.scrollLeft ||
         rectangle.y >= element.offsetHeight + element.scrollTop ||
         rectangle.y + rectangle.height <= element.scrollTop;
}

function __corvex__isElementScrolledOutOfClippingParent(element) {
  if (__corvex__nodeReader.tagName(element) === "BODY") {
    return false;
  }
  var info = __corvex__hierarchyInformation(element);
  var clippingParent = info.clippingParent;
  if (!clippingParent) {
    return false;
  }
  var rectangle = {
    x: element.offsetLeft - clippingParent.offsetLeft,
    y: element.offsetTop - clippingParent.offsetTop,
    width: element.offsetWidth,
    height: element.offsetHeight
  };
  for (var i = 0; i < info.offsetParents.length; ++i) {
    rectangle.x += info.offsetParents[i].offsetLeft;
    rectangle.y += info.offsetParents[i].offsetTop;
  }
  return __corvex__isRectOutsideOfClippingElementBounds(rectangle, clippingParent) ||
         __corvex__isElementScrolledOutOfClippingParent(clippingParent);
}

function __corvex__mapRect(rect, change) {
  return { x: change(rect.x), y: change(rect.y), width: change(rect.width), height: change(rect.height) };
}

function __corvex__imagePixelRatio() {
  var top = window.top;
  if (top.__corvex__googlechrome || top.__corvex__safari || top.__corvex__chromiumbased ||
      top.__corvex__microsoftedge) {
    return top.devicePixelRatio;
  }
  if (top.__corvex__ie) {
    return top.devicePixelRatio || screen.systemXDPI / screen.logicalXDPI;
  }
  return 1.0;
}

window.top.__corvex.getElementRectangleInDocument = function (element, zoomFactor) {
  if (__corvex__isElementScrolledOutOfClippingParent(element)) {
    return __corvex__invalidRect();
  }
  var rect = __corvex__boxWithoutOffsets(element) || {
    x: 0,
    y: 0,
    width: Math.max(element.scrollWidth, element.offsetWidth),
    height: Math.max(element.scrollHeight, element.offsetHeight)
  };
  for (; element; element = __corvex__nodeReader.offsetParent(element)) {
    rect.x += element.offsetLeft || 0;
    rect.y += element.offsetTop || 0;
  }
  // The walk has ended on nothing, so this is the offset of the window that runs the code: the page of the image.
  var frameOffset = __corvex__getFrameOffset(__corvex__currentContext(element));
  rect.x += frameOffset.x || 0;
  rect.y += frameOffset.y || 0;
  if (!window.top.__corvex__mozilla) {
    rect = __corvex__mapRect(rect, function (field) {
      return Math.round(field * zoomFactor);
    });
  }
  var devicePixelRatio = __corvex__imagePixelRatio();
  return __corvex__mapRect(rect, function (field) {
    return Math.floor(field * devicePixelRatio);
  });
};

function __corvex__documentExtent(ownSize, dimension) {
  var body = document.body;
  var root = document.documentElement;
  // An element of that name hides what the document says itself.
  return typeof ownSize === "number" && ownSize ||
    Math.max(body["scroll" + dimension], body["offset" + dimension], root["client" + dimension],
      root["scroll" + dimension], root["offset" + dimension]);
}

window.top.__corvex.getDocumentSize = function () {
  return {
    width: __corvex__documentExtent(document.width, "Width"),
    height: __corvex__documentExtent(document.height, "Height")
  };
};
