// Gives: __corvex__actionPoint, where a person would click an element, and __corvex__coverName, what is in the way there.
// Needs: runtime/natives, runtime/nodes, names/entry, visibility, input/hittarget, input/motion.

var __corvex__lastCover = null;

var __corvex__actionPoint = (function () {
  var scrollIntoView = __corvex__nativeFunction(window.Element && Element.prototype.scrollIntoView);
  // Centre first; then what a cover that is smaller than the element may leave.
  var places = [[0.5, 0.5], [0.25, 0.5], [0.75, 0.5], [0.5, 0.25], [0.5, 0.75], [0.1, 0.1], [0.9, 0.1], [0.1, 0.9],
    [0.9, 0.9]];
  // Pages keep headers at the top and bars at the bottom, so what is covered in one place may be free in another.
  var alignments = ["center", "end", "start"];

  function viewOf(o) {
    return __corvex__nodeReader.ownerDocument(o).defaultView;
  }

  // The first that has a size: the bounding rectangle of a wrapped link has no link in its middle.
  function rectOf(o) {
    var rects = __corvex__askNode.Element.getClientRects(o);
    for (var i = 0; i < rects.length; ++i) {
      if (rects[i].width >= 1 && rects[i].height >= 1) {
        return rects[i];
      }
    }
    return null;
  }

  // Where the view of a frame begins in the view around it.
  function frameOrigin(frame) {
    var box = __corvex__askNode.Element.getBoundingClientRect(frame);
    var style = viewOf(frame).getComputedStyle(frame);
    return { x: box.left + frame.clientLeft + parseFloat(style.paddingLeft),
      y: box.top + frame.clientTop + parseFloat(style.paddingTop) };
  }

  // As a place in the top view, or null where something else, which becomes the cover, or nothing is met on the way.
  function reach(o, x, y) {
    var hit = __corvex__hitTarget.at(__corvex__nodeReader.ownerDocument(o), x, y);
    if (!__corvex__hitTarget.isOwn(hit, o)) {
      __corvex__lastCover = __corvex__lastCover || hit;
      return null;
    }
    for (var w = viewOf(o); w !== window.top; w = w.parent) {
      var origin = frameOrigin(w.frameElement);
      x += origin.x;
      y += origin.y;
      hit = __corvex__hitTarget.at(w.parent.document, x, y);
      if (hit !== w.frameElement) {
        __corvex__lastCover = __corvex__lastCover || hit;
        return null;
      }
    }
    return { x: x, y: y };
  }

  // Somewhere in a rectangle.
  function reachWithin(o, rect, attempts) {
    for (var i = 0; rect && i < attempts; ++i) {
      var point = reach(o, rect.left + rect.width * places[i][0], rect.top + rect.height * places[i][1]);
      if (point) {
        return point;
      }
    }
    return null;
  }

  // Styles like to hide a check box, and show its label in its place.
  function reachByLabel(o) {
    var labels = __corvex__nodeReader.tagName(o) === "INPUT" && o.labels;
    for (var i = 0; labels && i < labels.length; ++i) {
      var point = reachWithin(o, rectOf(labels[i]), 1);
      if (point) {
        return point;
      }
    }
    return null;
  }

  function reachAny(o, x, y, many) {
    __corvex__lastCover = null;
    if (x !== null) {
      var box = __corvex__askNode.Element.getBoundingClientRect(o);
      return reach(o, box.left + x, box.top + y);
    }
    return reachWithin(o, rectOf(o), many ? places.length : 1) || (many ? reachByLabel(o) : null);
  }

  function bringIntoView(o, attempt) {
    var options = { block: alignments[attempt % alignments.length], inline: "nearest", behavior: "instant" };
    for (var e = o; e; e = viewOf(e) === window.top ? null : viewOf(e).frameElement) {
      if (scrollIntoView) {
        scrollIntoView.call(e, options);
      } else {
        e.scrollIntoView(false);
      }
    }
  }

  // The root goes on where the view ends, which may be smaller than it was when the place was noted.
  function inView(root, x, y) {
    var box = __corvex__askNode.Element.getBoundingClientRect(root);
    return {
      x: x > box.width ? Math.min(x, viewOf(root).innerWidth - 1 - box.left) : x,
      y: y > box.height ? Math.min(y, viewOf(root).innerHeight - 1 - box.top) : y
    };
  }

  // What flows over an element's box is its own, too; and all that no element covers is the root's.
  function isBeyond(o, x, y) {
    var box = __corvex__askNode.Element.getBoundingClientRect(o);
    if (x >= 0 && y >= 0 && x <= box.width && y <= box.height) {
      return false;
    }
    var doc = __corvex__nodeReader.ownerDocument(o);
    return !__corvex__hitTarget.isOwn(__corvex__hitTarget.at(doc, box.left + x, box.top + y), o);
  }

  // Whether its list shows its options in the page.
  function isInOpenList(o) {
    for (var e = o; e; e = __corvex__nodeReader.parentNode(e)) {
      if (__corvex__nodeReader.tagName(e) === "SELECT") {
        return e.multiple || e.size > 1;
      }
    }
    return true;
  }

  function isDisabled(o) {
    try {
      return o.matches(":disabled");
    } catch (e) {
      return false;
    }
  }

  // "at X Y" in the top window's view, or why not: "gone", "hidden", "beyond", "disabled", "moving", "covered", "outside",
  // "option" for one of a list that drops down; and "page" for what the browser shows in a way of its own. x and y are from
  // the element's corner, or null for a point of its own choice. attempt counts from 0.
  return function (o, x, y, attempt) {
    if (!o || __corvex__nodeReader.nodeType(o) !== 1) {
      return "page";
    }
    var tagName = __corvex__nodeReader.tagName(o);
    if (tagName === "AREA") {
      return "page";
    }
    if ((tagName === "OPTION" || tagName === "OPTGROUP") && !isInOpenList(o)) {
      return "option";
    }
    // A document that is left may keep its elements, and its frame's window, which shows another one then.
    if (!o.isConnected || !viewOf(o) || viewOf(o).document !== __corvex__nodeReader.ownerDocument(o)) {
      return "gone";
    }
    // A window of its own that this page opened, and that nothing else drives.
    if (viewOf(o).top !== window.top) {
      return "page";
    }
    if (!rectOf(o) || !__corvex__isVisibleByStyle(o)) {
      return "hidden";
    }
    if (x !== null && o === __corvex__nodeReader.ownerDocument(o).documentElement) {
      var place = inView(o, x, y);
      x = place.x;
      y = place.y;
    }
    if (x !== null && isBeyond(o, x, y)) {
      return "beyond";
    }
    if (isDisabled(o)) {
      return "disabled";
    }
    if (__corvex__motion.isMoving(o)) {
      return "moving";
    }
    var point = reachAny(o, x, y, false);
    if (!point) {
      bringIntoView(o, attempt);
      point = reachAny(o, x, y, true);
      // That was no move of its own.
      __corvex__motion.forgive(o);
    }
    return point ? "at " + point.x + " " + point.y : __corvex__lastCover ? "covered" : "outside";
  };
})();

function __corvex__coverName() {
  return __corvex__lastCover ? unescape(__corvex__nameOf(__corvex__lastCover)) : "";
}
