// Gives: window.top.__corvex.hasFocus, through shadow roots and frames.
// Needs: runtime/nodes, runtime/contexts.

window.top.__corvex.hasFocus = (function () {
  function isFocusedInFrames(window_) {
    for (var win = window_; win.frameElement; win = win.parent) {
      if (win.parent.document.activeElement !== win.frameElement) {
        return false;
      }
    }
    return true;
  }

  return function (element) {
    var doc = __corvex__nodeReader.ownerDocument(element);
    if (typeof ShadowRoot !== "undefined") {
      doc = __corvex__askNode.Node.getRootNode(element);
      while (__corvex__isShadowRoot(doc)) {
        if (doc.activeElement !== element) {
          return false;
        }
        element = doc.host;
        doc = __corvex__askNode.Node.getRootNode(element);
      }
    }
    if (doc.activeElement !== element) {
      return false;
    }
    var win = doc.defaultView !== undefined ? doc.defaultView : __corvex__currentContext(element);
    if (win === undefined || win === window.top) {
      return true;
    }
    return isFocusedInFrames(win);
  };
})();
