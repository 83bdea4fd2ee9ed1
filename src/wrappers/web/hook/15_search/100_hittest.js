// Gives: __corvex__childAt, the deepest element at a screen point; isConsideredGlassPane.
// Needs: geometry/screenrect, dom.

function __corvex__listHolds(list, entry) {
  for (var i = 0; i < list.length; ++i) {
    if (list[i] === entry) {
      return true;
    }
  }
  return false;
}

function isConsideredGlassPane(element) {
  return __corvex__listHolds(window.top.__corvex.glassPaneIds, element.id) ||
    __corvex__listHolds(window.top.__corvex.glassPaneClassNames, element.className);
}

function __corvex__isValidRect(rect) {
  return rect.width > 0 && rect.height > 0;
}

function __corvex__rectContains(rect, x, y) {
  return x >= rect.x && x <= rect.x + rect.width && y >= rect.y && y <= rect.y + rect.height;
}

function __corvex__fitsInto(rect, limit) {
  return rect.width <= limit.width && rect.height <= limit.height;
}

function __corvex__documentOfHookedFrame(object) {
  if (object.tagName !== "IFRAME" && object.tagName !== "FRAME") {
    return undefined;
  }
  try {
    var doc = object.contentWindow.document;
    return doc.__corvex__hooked__events ? doc : undefined;
  } catch (e) {
    return undefined;
  }
}

function __corvex__firstChildToHit(object) {
  var child = __corvex__documentOfHookedFrame(object) || __corvexDOMAPI.firstChild(object);
  if (child && child.tagName === "HTML") {
    var head = __corvexDOMAPI.firstChild(child);
    child = head && __corvexDOMAPI.nextSibling(head);
  }
  return child;
}

function __corvex__childAt(object, relX, relY) {
  var rect = __corvex__getScreenRectAsObject(object);
  var isValid = __corvex__isValidRect(rect);
  if (isValid && !__corvex__rectContains(rect, relX, relY)) {
    return null;
  }
  var limit = isValid ? rect : { x: 0, y: 0, width: 10000, height: 10000 };
  for (var child = __corvex__firstChildToHit(object); child; child = __corvexDOMAPI.nextSibling(child)) {
    var childRect = __corvex__getScreenRectAsObject(child);
    if (__corvex__rectContains(childRect, relX, relY) || !__corvex__isValidRect(childRect)) {
      var hit = __corvex__childAt(child, relX, relY);
      if (hit && !isConsideredGlassPane(hit) &&
        __corvex__fitsInto(__corvex__getScreenRectAsObject(hit), limit)) {
        return hit;
      }
    }
  }
  return isValid ? object : null;
}
