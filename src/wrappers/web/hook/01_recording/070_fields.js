// Gives: the content of fields that change without a key or a press that tells of it, and what else people do by keyboard.
// Needs: recording/capture, runtime/natives, runtime/builtins, runtime/state, runtime/nodes, runtime/eventobject,
//   runtime/listeners.

var __corvex__fields = {
  // The field that changed last, and whether the driver lacks its content.
  field: null,
  isUntold: false,
  changedAt: 0,
  isWatched: false,
  // Whether the keyboard was used after the pointer.
  isByKey: false,
  // The field in which Return was pressed last, until something else changes or is pressed.
  returnField: null,
  isComposing: false,
  // Whether the page is to wait until a message is taken.
  waits: false,
  // What the message that is under way has besides.
  items: ""
};

// So long after its last change a field stands still.
var __corvex__fieldRestMs = 800;

var __corvex__fieldKinds = {
  text: "text", search: "text", url: "text", tel: "text", email: "text", password: "text", number: "text",
  textarea: "text",
  date: "value", "datetime-local": "value", month: "value", week: "value", time: "value", color: "value",
  range: "value"
};

function __corvex__kindOfField(node) {
  var tag = __corvex__nodeReader.tagName(node);
  if (tag === "INPUT" || tag === "TEXTAREA") {
    return __corvex__natives.has(__corvex__fieldKinds, node.type) ? __corvex__fieldKinds[node.type] : "";
  }
  return node.isContentEditable === true ? "editable" : "";
}

function __corvex__sendForField(type, field, keyCode, items) {
  __corvex__fields.items = items;
  try {
    __corvex__handler({
      type: type, target: field, keyCode: keyCode, altKey: false, ctrlKey: false, shiftKey: false
    });
  } finally {
    __corvex__fields.items = "";
  }
}

// As a key that is none would, where the driver takes the text of fields from keys.
function __corvex__tellField() {
  var field = __corvex__fields.field;
  if (!field || !__corvex__fields.isUntold) {
    return;
  }
  __corvex__fields.isUntold = false;
  var kind = __corvex__kindOfField(field);
  if (kind === "text") {
    __corvex__sendForField("keyup", field, 0, "");
  } else if (kind) {
    var content = kind === "value" ? field.value : field.innerText;
    __corvex__sendForField("fieldSet", field, 0, "&content=" + escape(content));
  }
}

function __corvex__tellRestingField() {
  var rest = __corvex__natives.milliseconds() - __corvex__fields.changedAt;
  __corvex__fields.isWatched = rest < __corvex__fieldRestMs;
  if (__corvex__fields.isWatched) {
    __corvex__later(__corvex__tellRestingField, __corvex__fieldRestMs - rest);
  } else {
    __corvex__tellField();
  }
}

function __corvex__noteField(field) {
  if (__corvex__fields.field !== field) {
    __corvex__tellField();
  }
  __corvex__fields.field = field;
  __corvex__fields.isUntold = true;
  __corvex__fields.changedAt = __corvex__natives.milliseconds();
  if (!__corvex__fields.isWatched) {
    __corvex__fields.isWatched = true;
    __corvex__later(__corvex__tellRestingField, __corvex__fieldRestMs);
  }
}

// Keys that change a field only where the page or the browser makes more of them.
function __corvex__isKeyWithoutText(keyCode) {
  return keyCode === 9 || (keyCode >= 16 && keyCode <= 20) || keyCode === 27 || (keyCode >= 33 && keyCode <= 40) ||
         (keyCode >= 112 && keyCode <= 123);
}

// The driver got the content with the event of a key.
function __corvex__noteTold(e, source) {
  if (e.type === "keyup" && source === __corvex__fields.field && __corvex__kindOfField(source) === "text" &&
      !__corvex__isKeyWithoutText(e.keyCode)) {
    __corvex__fields.isUntold = false;
  }
}

// The key that ends the work of an input method is no Return.
function __corvex__isKeyOfComposition(e) {
  return e.type === "keyup" && e.keyCode === 13 && __corvex__fields.isComposing;
}

// For what the page may be left after: the messages outlive it.
function __corvex__tellBeforeLeaving(tell) {
  var wasLeaving = __corvex__windowState.isPageLeaving;
  __corvex__windowState.isPageLeaving = true;
  try {
    tell();
  } finally {
    __corvex__windowState.isPageLeaving = wasLeaving;
  }
}

// What a key told a moment ago may be dropped with the page.
function __corvex__tellChangedField() {
  var sinceChange = __corvex__natives.milliseconds() - __corvex__fields.changedAt;
  if (sinceChange < __corvex__fieldRestMs && !__corvex__fields.returnField) {
    __corvex__fields.isUntold = true;
  }
  __corvex__tellField();
}

// For a page that moves itself: Firefox would drop the message with it.
function __corvex__tellFieldAtOnce() {
  __corvex__fields.waits = true;
  try {
    __corvex__tellChangedField();
  } finally {
    __corvex__fields.waits = false;
  }
}

// The page may leave, or empty the field, before the key comes up. Documents of frames tell of keys that go down anyway.
function __corvex__noteReturn(source) {
  __corvex__tellField();
  if (__corvex__nodeReader.tagName(source) !== "INPUT" || __corvex__kindOfField(source) !== "text") {
    return;
  }
  if (__corvex__nodeReader.ownerDocument(source) === document) {
    __corvex__sendForField("keydown", source, 13, "");
  }
  __corvex__fields.returnField = source;
}

var __corvex__fieldHandlers = {
  input: function (source, e) {
    if (!__corvex__kindOfField(source)) {
      // It may be the first that is heard of a list. Shadow trees let no change out.
      __corvex__install__handler(e);
      return;
    }
    __corvex__noteField(source);
    if (__corvex__fields.returnField) {
      __corvex__fields.returnField = null;
      __corvex__tellField();
    }
  },
  change: function (source, e) {
    var kind = __corvex__kindOfField(source);
    if (kind === "value") {
      __corvex__noteField(source);
    } else if (kind === "text") {
      __corvex__tellField();
    }
    // It may be the first that is heard of a field for files.
    __corvex__install__handler(e);
  },
  keydown: function (source, e) {
    __corvex__fields.isByKey = true;
    __corvex__fields.isComposing = e.isComposing || e.keyCode === 229;
    if (source !== __corvex__fields.returnField) {
      __corvex__fields.returnField = null;
    }
    if (e.keyCode === 13 && !__corvex__fields.isComposing) {
      __corvex__tellBeforeLeaving(function () {
        __corvex__noteReturn(source);
      });
    }
  },
  mousedown: function () {
    __corvex__fields.isByKey = false;
    __corvex__fields.returnField = null;
    __corvex__tellField();
  },
  // A Return in a field of a form presses its button, of which the driver is told otherwise. What a key presses may be
  // gone as soon as the page knows of it.
  click: function (source) {
    if (__corvex__fields.isByKey && !__corvex__fields.returnField) {
      __corvex__tellBeforeLeaving(function () {
        __corvex__sendForField("keyClick", source, 0, "");
      });
    }
  },
  focusout: function (source) {
    if (source === __corvex__fields.field) {
      __corvex__tellField();
    }
  },
  // Frames go after the page that shows them, and are nowhere then.
  pagehide: function (source) {
    var field = __corvex__fields.field;
    var isGone = source === document || (field && __corvex__nodeReader.ownerDocument(field) === source);
    if (!isGone) {
      return;
    }
    __corvex__tellBeforeLeaving(__corvex__tellChangedField);
    __corvex__fields.field = null;
  }
};

// Only what people do: a script can make up whatever it likes.
function __corvex__takeFieldEvent(e) {
  if (!window.__corvex__recording || window.__corvex__pickObject || !e || !e.isTrusted) {
    return;
  }
  __corvex__fieldHandlers[e.type](__corvex__srcElement(e), e);
}
