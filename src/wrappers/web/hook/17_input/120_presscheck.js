// Gives: __corvex__pressCheck, __corvex__pressPoint: a press of the browser that meets something else is kept from pages.
// Needs: runtime/natives, runtime/builtins, runtime/nodes, input/hittarget, input/actionpoint.

var __corvex__pressCheck = (function () {
  var prototype = window.EventTarget && window.EventTarget.prototype;
  var add = __corvex__nativeFunction(prototype && prototype.addEventListener);
  var remove = __corvex__nativeFunction(prototype && prototype.removeEventListener);
  var eventNames = ["pointerdown", "mousedown", "pointerup", "mouseup", "click", "auxclick", "contextmenu", "dblclick"];
  var object = null;
  var state = "none";

  // In the windows around a frame, the frame stands for all that is in it.
  function meant(w) {
    var expected = object;
    for (var v = __corvex__nodeReader.ownerDocument(object).defaultView; v !== w; v = v.parent) {
      expected = v.frameElement;
    }
    return expected;
  }

  var watch = __corvex__quiet(function (e) {
    if (!e.isTrusted || !object) {
      return;
    }
    if (state === "none") {
      var hit = e.composedPath ? e.composedPath()[0] : e.target;
      var isOwn = __corvex__hitTarget.isOwn(hit, meant(e.currentTarget));
      __corvex__lastCover = isOwn ? null : hit;
      state = isOwn ? "met" : "covered";
    }
    if (state === "covered") {
      e.preventDefault();
      e.stopImmediatePropagation();
    }
  });

  function eachWindow(action) {
    for (var w = __corvex__nodeReader.ownerDocument(object).defaultView; w; w = w === window.top ? null : w.parent) {
      for (var i = 0; i < eventNames.length; ++i) {
        action.call(w, eventNames[i], watch, true);
      }
    }
  }

  return {
    begin: function (o) {
      this.end();
      if (add && remove) {
        object = o;
        state = "none";
        eachWindow(add);
      }
    },
    // "met", "covered", or "none" when no press came.
    end: function () {
      try {
        if (object) {
          eachWindow(remove);
        }
      } catch (e) {
        // The element's window is gone, and the listeners with it.
      }
      object = null;
      return state;
    }
  };
})();

// Keys may have led the focus to the browser's own controls, and in a browser that shows no window no press brings it back.
function __corvex__takeFocusFromBrowser() {
  try {
    if (!document.hasFocus()) {
      window.focus();
    }
  } catch (e) {
    // The page has replaced one of them.
  }
}

// An action point, with a check of the press that is to follow.
function __corvex__pressPoint(o, x, y, attempt) {
  var answer = __corvex__actionPoint(o, x, y, attempt);
  if (answer.substring(0, 3) === "at ") {
    __corvex__takeFocusFromBrowser();
    __corvex__pressCheck.begin(o);
  }
  return answer;
}
