// Gives: how far the page is scrolled.
// Needs: nothing.

function __corvex__getPageOffset() {
  if (typeof window.pageYOffset === "number") {
    return [window.pageXOffset, window.pageYOffset];
  }
  if (document.body && (document.body.scrollLeft || document.body.scrollTop)) {
    return [document.body.scrollLeft, document.body.scrollTop];
  }
  var root = document.documentElement;
  if (root && (root.scrollLeft || root.scrollTop)) {
    return [root.scrollLeft, root.scrollTop];
  }
  return [0, 0];
}

function __corvex__getPageOffsetX() {
  return __corvex__getPageOffset()[0];
}

function __corvex__getPageOffsetY() {
  return __corvex__getPageOffset()[1];
}
