// Gives: the listeners of the own document and of frames, and the change listeners of controls.
// Needs: recording/picking, recording/capture, recording/touch, recording/fields, runtime/builtins, runtime/nodes,
//   runtime/eventobject, runtime/frames.

var __corvex__quietMousemove = __corvex__quiet(__corvex__mousemove);
var __corvex__quietTouchstart = __corvex__quiet(__corvex__touchstart);
var __corvex__quietTouchend = __corvex__quiet(__corvex__touchend);

// Each listener is one function for good, so that a document which gets it twice calls it once. attached: for a browser
// that knows only attachEvent.
function __corvex__listenerRows(handledTypes, installTypes, handler, attached) {
  var quietInstaller = __corvex__quiet(__corvex__install__handler);
  var rows = [];
  var i;
  for (i = 0; i < handledTypes.length; ++i) {
    rows.push({ type: handledTypes[i], listener: handler, attached: attached });
  }
  for (i = 0; i < installTypes.length; ++i) {
    rows.push({ type: installTypes[i], listener: quietInstaller, attached: quietInstaller });
  }
  rows.push({ type: "mousemove", listener: __corvex__quietMousemove, attached: __corvex__quietMousemove });
  return rows;
}

// An event may meet several listeners of ours, as pages stop some on the way. Whichever is first takes it.
var __corvex__handleOnce = (function () {
  var taken = null;
  return function (e, d) {
    if (e && e === taken) {
      return undefined;
    }
    taken = e;
    return __corvex__handler(e, d);
  };
})();

var __corvex__ownListeners = (function () {
  var handler = __corvex__quiet(function (e) {
    return __corvex__handleOnce(e);
  });
  return __corvex__listenerRows(["keyup", "mousedown", "click", "dblclick"], ["keydown", "focus"], handler, handler);
})();

var __corvex__frameListeners = __corvex__listenerRows(
  ["keyup", "mousedown", "click", "dblclick", "keydown"],
  ["focus"],
  __corvex__quiet(function (e) {
    return __corvex__handleOnce(e, this);
  }),
  __corvex__quiet(function () {
    return __corvex__handler(undefined, this);
  })
);

function __corvex__listenInDocument(doc, rows) {
  for (var i = 0; i < rows.length; ++i) {
    if (doc.addEventListener) {
      doc.addEventListener(rows[i].type, rows[i].listener, true);
    } else {
      doc.attachEvent("on" + rows[i].type, rows[i].attached);
    }
  }
}

var __corvex__quietFieldEvent = __corvex__quiet(__corvex__takeFieldEvent);

// Before the page's own listeners, which may change what there is to tell.
function __corvex__listenForFields(win) {
  var types = ["input", "change", "keydown", "mousedown", "click", "focusout", "pagehide"];
  for (var i = 0; win.addEventListener && i < types.length; ++i) {
    win.addEventListener(types[i], __corvex__quietFieldEvent, true);
  }
}

// What happens in a frame before the next sweep must not be lost while a recording runs.
var __corvex__quietFrameLoaded = __corvex__quiet(function (e) {
  var tagName = window.__corvex__recording && e && e.isTrusted && __corvex__nodeReader.tagName(e.target);
  if (tagName === "IFRAME" || tagName === "FRAME") {
    __corvex__hookInFrame(e.target);
  }
});

function __corvex__listenForFrames(doc) {
  if (doc.addEventListener) {
    doc.addEventListener("load", __corvex__quietFrameLoaded, true);
  }
}

function __corvex__listenInOwnDocument() {
  __corvex__markAsHooked(document);
  __corvex__listenForFields(window);
  __corvex__listenForFrames(document);
  __corvex__listenInDocument(document, __corvex__ownListeners);
  __corvex__hookupTouchEvents(window);
}

function __corvex__addChangeListener(control) {
  if (control.addEventListener) {
    control.addEventListener("change", __corvex__quiet(function (e) {
      __corvex__handleOnce(e, this);
    }), true);
  } else if (control.type === "file") {
    control.attachEvent("onchange", __corvex__quiet(function () {
      __corvex__handler(undefined, this);
    }));
  } else {
    control.attachEvent("onchange", __corvex__quiet(__corvex__onChangeHandler));
  }
  control.__corvex__onchange = true;
}

// A selection or file element gets its change listener at its first use while a recording runs.
function __corvex__install__handler(e) {
  if (!e || !window.__corvex__recording) {
    return;
  }
  var source = __corvex__srcElement(e);
  if (!source || typeof source.type !== "string" || source.__corvex__onchange) {
    return;
  }
  if (source.type.indexOf("select") === 0 || source.type === "file") {
    __corvex__addChangeListener(source);
  }
}
