// Gives: window.top.__corvex.getSelectedText.
// Needs: nothing.

window.top.__corvex.getSelectedText = function (o) {
  var direction = o.selectionDirection;
  if (direction === undefined || direction === null || direction === "forward" || direction === "none") {
    return o.value.substring(o.selectionStart, o.selectionEnd);
  }
  if (direction === "backward") {
    return o.value.substring(o.selectionEnd, o.selectionStart);
  }
  throw new Error("Unknown selection direction: " + direction);
};
