// Gives: scrolling to an element, attributes, and the texts of the last dialogs.
// Needs: runtime/state, runtime/nodes.

function __corvex__scrollTakesOptions() {
  var version = window.top.__corvex.browsermajorversion;
  return (window.top.__corvex__mozilla && version >= 36) || (window.top.__corvex__googlechrome && version >= 61);
}

function __corvex__scrollToElement(e, top) {
  if (!e) {
    return;
  }
  try {
    if (__corvex__scrollTakesOptions()) {
      e.scrollIntoView({ block: top ? "start" : "end", behavior: "instant" });
    } else {
      e.scrollIntoView(top);
    }
  } catch (ex) {
    // A document has no such function.
  }
}

// It always returns: a thrown error would cost the caller its time-out.
function __corvex__getObjectAttribute(obj, attrName) {
  try {
    if (obj && obj.getAttribute !== undefined) {
      return __corvex__attributeOf(obj, attrName);
    }
  } catch (e) {
    // No such attribute, then.
  }
  return undefined;
}

function __corvex__lastAlertText() {
  return __corvex__dialogState.lastAlertMessage;
}

function __corvex__lastConfirmText() {
  return __corvex__dialogState.lastConfirmMessage;
}

function __corvex__lastPromptText() {
  return __corvex__dialogState.lastPromptMessage;
}

function __corvex__lastPromptDefault() {
  return __corvex__dialogState.lastPromptDefaultValue;
}
