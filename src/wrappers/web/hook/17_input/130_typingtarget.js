// Gives: how an element takes text: __corvex__typingKind, __corvex__focusedField, __corvex__typingField.
// Needs: runtime/natives, runtime/nodes, input/hittarget, input/motion, input/typingcheck.

// The deepest element that has the focus, through shadow trees and frames.
function __corvex__activeElement() {
  var active = document.activeElement;
  for (var inner = active; inner;) {
    active = inner;
    try {
      var root = __corvex__nodeReader.shadowRoot(active);
      inner = root ? root.activeElement : active.contentDocument ? active.contentDocument.activeElement : null;
    } catch (e) {
      // A frame of another origin.
      inner = null;
    }
  }
  return active;
}

// "field" and "editor" take keys, "value" takes none that would mean the same everywhere, "file" takes the path of a file,
// "readonly" nothing; "" is no field.
var __corvex__typingKind = (function () {
  var otherInputs = { button: "", checkbox: "", hidden: "", image: "", radio: "", reset: "", submit: "", file: "file",
    color: "value", date: "value", "datetime-local": "value", month: "value", range: "value", time: "value",
    week: "value" };

  return function (o) {
    var tagName = o && __corvex__nodeReader.tagName(o);
    var isInput = tagName === "INPUT";
    if (isInput || tagName === "TEXTAREA") {
      var type = isInput ? String(o.type).toLowerCase() : "";
      var kind = __corvex__natives.has(otherInputs, type) ? otherInputs[type] : "field";
      return kind && o.readOnly ? "readonly" : kind;
    }
    return o && (o.isContentEditable || __corvex__nodeReader.ownerDocument(o).designMode === "on") ? "editor" : "";
  };
})();

// A text area that only takes the keys for what an editor shows has next to no size, or cannot be seen.
function __corvex__isKeyCatcher(o) {
  var box = __corvex__askNode.Element.getBoundingClientRect(o);
  if (box.width < 4 || box.height < 4) {
    return true;
  }
  for (var e = o; e && e.nodeType === 1; e = __corvex__hitTarget.parentOf(e)) {
    var style = __corvex__nodeReader.ownerDocument(e).defaultView.getComputedStyle(e);
    var around = __corvex__askNode.Element.getBoundingClientRect(e);
    if (style.opacity === "0" || (style.overflow === "hidden" && (around.width < 4 || around.height < 4))) {
      return true;
    }
  }
  return false;
}

// How the element with the focus takes text: "field" if all that it holds could be selected, "editor" if that takes keys,
// "readonly", or "" for none. A field that o does not lead to counts only after a click on o.
function __corvex__focusedField(o, isClicked) {
  var active = __corvex__activeElement();
  var kind = __corvex__typingKind(active);
  var isRelated = isClicked || __corvex__hitTarget.isWithin(active, o) || __corvex__hitTarget.isWithin(o, active);
  if (!isRelated || (kind !== "field" && kind !== "editor")) {
    return isRelated && kind === "readonly" ? kind : "";
  }
  return kind === "field" && __corvex__isKeyCatcher(active) ? "editor" : kind;
}

// Whether a click on o, which is no field itself, may lead to one: in it, or in an editor of which it is a part.
var __corvex__leadsToField = (function () {
  var controls = { A: 1, AREA: 1, BUTTON: 1, IMG: 1, INPUT: 1, OPTION: 1, SELECT: 1, SUMMARY: 1 };
  var select = __corvex__nativeFunction(window.Element && Element.prototype.querySelector);

  function holdsField(e) {
    return !!__corvex__nodeReader.shadowRoot(e) || !select || !!select.call(e, "input, textarea, [contenteditable]");
  }

  return function (o) {
    if (controls[__corvex__nodeReader.tagName(o)] === 1) {
      return false;
    }
    var e = o;
    while (e && e.nodeType === 1 && __corvex__nodeReader.tagName(e) !== "BODY" && !holdsField(e)) {
      e = __corvex__hitTarget.parentOf(e);
    }
    return !!e && e.nodeType === 1 && __corvex__nodeReader.tagName(e) !== "BODY";
  };
})();

// The kind of o, "none" for what does not lead to a field, "moving" for one that does not stand still yet; and "focus" if
// a person would not click it before typing, else "click".
function __corvex__typingState(o) {
  var kind = __corvex__typingKind(o);
  if (!kind && !__corvex__leadsToField(o)) {
    return "none click";
  }
  var isReady = __corvex__nodeReader.nodeType(o) !== 1 || __corvex__isKeyCatcher(o) ||
    __corvex__focusedField(o, false) === "field";
  // Browsers lose the caret in a field that is just being shown.
  var isMoving = isReady && __corvex__nodeReader.nodeType(o) === 1 && __corvex__motion.isAnimated(o) &&
    __corvex__motion.isMoving(o);
  return (isMoving ? "moving" : kind) + " " + (isReady ? "focus" : "click");
}

// As focusedField; gives o the focus by a call where no click did, and begins the check of what is typed then. isWhole
// selects what a field holds.
function __corvex__typingField(o, isClicked, isWhole) {
  var kind = __corvex__focusedField(o, isClicked);
  if (!kind && typeof o.focus === "function") {
    o.focus();
    kind = __corvex__focusedField(o, false);
  }
  if (kind === "field" && isWhole) {
    __corvex__activeElement().select();
  }
  if (kind) {
    __corvex__typingCheck.begin();
  }
  return kind;
}
