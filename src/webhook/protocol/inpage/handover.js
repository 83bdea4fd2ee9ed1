// Gives: the window that the element `this` belongs to. An element has an id that can be sent only where it was asked for
// in the frame that it belongs to, so it is left there for takehandedover.js.
// Needs: nothing.
function handOver() {
  var frame = this.ownerDocument.defaultView;
  if (frame !== window) {
    frame.__corvex__handedOver = this;
  }
  return frame;
}
