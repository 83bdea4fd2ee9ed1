// Gives: whether the element with the focus, of whatever frame or shadow tree, took a text at its caret.
// Needs: nothing; %1 is a list of one text.
(function (texts) {
  var active = document.activeElement;
  function inner(element) {
    try {
      return element.shadowRoot ? element.shadowRoot.activeElement :
        element.contentDocument ? element.contentDocument.activeElement : null;
    } catch (e) {
      // A frame of another origin.
      return null;
    }
  }
  while (active && inner(active)) {
    active = inner(active);
  }
  return !!active && Document.prototype.execCommand.call(active.ownerDocument, "insertText", false, texts[0]);
}(/*%1*/))
