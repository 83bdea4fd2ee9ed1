// Gives: key events, typed text, and values and contents of text fields.
// Needs: runtime/natives, browsers, input/mouseevents.

// ch: its character code goes out with all three event types, not a virtual key code.
function __corvex__sendKeyEvent(o, ev, ch) {
  if (!o) {
    return;
  }
  var keycode = __corvex__natives.charCodeAt(ch, 0);
  var evt;
  if (__corvex__useIE8AndOlderEventDispatching(o)) {
    evt = o.ownerDocument.createEventObject();
    evt.keyCode = keycode;
    o.fireEvent("on" + ev, evt);
    return;
  }
  try {
    evt = new KeyboardEvent(ev, { composed: true });
  } catch (e) {
    evt = o.ownerDocument.createEvent("KeyboardEvent");
  }
  evt.initKeyboardEvent(ev, true, true, document.defaultView, false, false, false, false, 0, keycode);
  o.dispatchEvent(evt);
}

// Newer Safari versions no longer react to the key events alone.
function __corvex__sendTextInputEvent(o, c) {
  try {
    var evt = document.createEvent("TextEvent");
    evt.initTextEvent("textInput", true, true, null, c);
    o.dispatchEvent(evt);
  } catch (e) {
    // The key events have to do.
  }
}

// Sends keys only: the value of a field is set by __corvex__setTextFieldValue.
function __corvex__typeText(o, txt) {
  for (var i = 0; i < txt.length; ++i) {
    var c = txt[i];
    __corvex__sendKeyEvent(o, "keydown", c);
    __corvex__sendKeyEvent(o, "keypress", c);
    if (__corvex__isEmbeddedAppleWebkitBrowser()) {
      __corvex__sendTextInputEvent(o, c);
    }
    __corvex__sendKeyEvent(o, "keyup", c);
  }
}

function __corvex__setTextFieldValue(obj, value) {
  obj.value = value;
  __corvex__sendChangeEvent(obj);
}

window.top.__corvex.selectAll = function (inputElement) {
  if (inputElement.select) {
    inputElement.select();
  } else if (inputElement.setSelectionRange) {
    inputElement.setSelectionRange(0, inputElement.value.length);
  } else {
    throw new Error("Object does not support select or setSelectionRange function, cannot select content.");
  }
};
