// Gives: __corvex__pasteText: has the editor with the focus take a text as one that is pasted.
// Needs: runtime/nodes, input/typingtarget, input/typingcheck.

function __corvex__pasteEvent(w, text) {
  var data = new w.DataTransfer();
  data.setData("text/plain", text);
  // Firefox knows dataType and data, other browsers clipboardData.
  var content = { clipboardData: data, dataType: "text/plain", data: text };
  return new w.ClipboardEvent("paste", Object.assign(content, { bubbles: true, cancelable: true, composed: true }));
}

// Whether the editor took it. One that leaves pasting to the browser takes nothing here.
function __corvex__pasteText(text) {
  var active = __corvex__activeElement();
  var event;
  try {
    event = __corvex__pasteEvent(__corvex__nodeReader.ownerDocument(active).defaultView, text);
  } catch (e) {
    return false;
  }
  var isLeft = active.dispatchEvent(event);
  if (!isLeft) {
    __corvex__typingCheck.end();
  }
  return !isLeft;
}
