// Gives: frames by the names that a page gave them, and the window that a link or form addresses.
// Needs: runtime/natives, runtime/state, runtime/nodes, runtime/framewalk, input/contexts.

function __corvex__findFrameByIdOrName(ctxdoc, frame) {
  var elem = __corvex__askDocument(ctxdoc, "getElementById", frame);
  if (elem && (elem.tagName === "IFRAME" || elem.tagName === "FRAME")) {
    return elem;
  }
  return __corvex__matchFrameByName(window.top.__corvex.getAllFrames(ctxdoc), frame);
}

function __corvex__findFrameRecursive(ctxdoc, frameName) {
  if (!ctxdoc) {
    return null;
  }
  return __corvex__findFrameByIdOrName(ctxdoc, frameName) || __corvex__firstInFrames(ctxdoc, function (frameWindow) {
    return __corvex__findFrameByIdOrName(frameWindow.document, frameName);
  }) || null;
}

var __corvex__targetWindows = {
  _top: function () {
    return __corvex__windowState.topWindow;
  },
  _parent: function (start) {
    return start.parent;
  },
  _blank: function () {
    return window.open("", "_blank");
  },
  _self: function (start) {
    return start;
  }
};

// A named window that is no frame is not resolved: a reference to it would not outlive the page.
function __corvex__findTargetWindow(elem) {
  var start = __corvex__nodeReader.ownerDocument(elem).defaultView;
  // A field of that name hides the target of a form.
  var target = typeof elem.target === "object" ? __corvex__attributeOf(elem, "target") : elem.target;
  if (!target) {
    return start;
  }
  if (__corvex__natives.has(__corvex__targetWindows, target)) {
    return __corvex__targetWindows[target](start);
  }
  var frame = __corvex__findFrameRecursive(__corvex__windowState.topWindow.document, target);
  return frame ? frame.contentWindow : start;
}
