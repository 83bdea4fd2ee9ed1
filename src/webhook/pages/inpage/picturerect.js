// Gives: where an element is in a picture of the whole page, as much of it as the boxes and frames around it let be seen:
// "x,y,width,height,ratio,whole", the first four in CSS pixels, `ratio` the picture's pixels to one of these, `whole` 1 for
// all of the element. Needs: the hook script.
(function () {
  function boxOf(e) {
    var box = __corvex__askNode.Element.getBoundingClientRect(e);
    return { left: box.left, top: box.top, right: box.right, bottom: box.bottom };
  }

  function cut(rect, by) {
    rect.left = Math.max(rect.left, by.left);
    rect.top = Math.max(rect.top, by.top);
    rect.right = Math.min(rect.right, by.right);
    rect.bottom = Math.min(rect.bottom, by.bottom);
  }

  function shift(rect, x, y) {
    rect.left += x;
    rect.right += x;
    rect.top += y;
    rect.bottom += y;
  }

  function parentOf(e) {
    return e.assignedSlot || __corvex__nodeReader.parentNode(e) || e.host;
  }

  // The root and the body hand their overflow over to the view.
  function clips(e, w) {
    return e.nodeType === 1 && e !== w.document.documentElement && e !== w.document.body &&
      w.getComputedStyle(e).overflow !== "visible";
  }

  // Shown by a frame is what is inside of its border and padding.
  function throughFrame(rect, w) {
    cut(rect, { left: 0, top: 0, right: w.innerWidth, bottom: w.innerHeight });
    var frame = w.frameElement;
    var box = boxOf(frame);
    var style = w.parent.getComputedStyle(frame);
    shift(rect, box.left + frame.clientLeft + parseFloat(style.paddingLeft),
      box.top + frame.clientTop + parseFloat(style.paddingTop));
  }

  var answer = "";
  function place(object) {
    var element = object();
    element = element.nodeType === 9 ? element.documentElement : element;
    var rect = boxOf(element);
    var area = (rect.right - rect.left) * (rect.bottom - rect.top);
    var w = element.ownerDocument.defaultView;
    for (var e = element; e; e = w !== window.top && w.frameElement, w = e ? w.parent : w) {
      for (var parent = parentOf(e); parent && parent.nodeType !== 9; parent = parentOf(parent)) {
        if (clips(parent, w)) {
          cut(rect, boxOf(parent));
        }
      }
      if (w !== window.top) {
        throughFrame(rect, w);
      }
    }
    var width = Math.max(rect.right - rect.left, 0);
    var height = Math.max(rect.bottom - rect.top, 0);
    shift(rect, window.pageXOffset, window.pageYOffset);
    answer = [rect.left, rect.top, width, height, window.devicePixelRatio,
      width * height > area - 1 ? 1 : 0].join();
  }
  /*%1*/
  return answer;
}());
