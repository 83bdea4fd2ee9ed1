// Gives: __corvex__dragEmulation: drags of elements where the browser begins one on a driver's input, but never ends it.
// Needs: runtime/natives, runtime/nodes, input/hittarget.

var __corvex__dragEmulation = (function () {
  var prototype = window.EventTarget && window.EventTarget.prototype;
  var add = __corvex__nativeFunction(prototype && prototype.addEventListener);
  var remove = __corvex__nativeFunction(prototype && prototype.removeEventListener);
  var view = null;
  var drag = null;

  // Whether the page let it pass.
  function send(name, target, at) {
    var options = { bubbles: true, cancelable: name !== "dragleave" && name !== "dragend", composed: true, view: view,
      clientX: at.clientX, clientY: at.clientY, screenX: at.screenX, screenY: at.screenY, dataTransfer: drag.data };
    return target.dispatchEvent(new view.DragEvent(name, options));
  }

  function keepFromPage(e) {
    e.preventDefault();
    e.stopImmediatePropagation();
  }

  function onDragStart(e) {
    if (!e.isTrusted) {
      return;
    }
    keepFromPage(e);
    drag = { source: e.target, data: new view.DataTransfer(), over: null, isTaken: false };
    if (!send("dragstart", e.target, e)) {
      drag = null;
    }
  }

  function onMove(e) {
    if (!drag || !e.isTrusted) {
      return;
    }
    keepFromPage(e);
    var target = __corvex__hitTarget.at(view.document, e.clientX, e.clientY);
    send("drag", drag.source, e);
    if (target !== drag.over) {
      var left = drag.over;
      drag.over = target;
      if (target) {
        send("dragenter", target, e);
      }
      if (left) {
        send("dragleave", left, e);
      }
    }
    drag.isTaken = !!target && !send("dragover", target, e);
  }

  function onUp(e) {
    if (!e.isTrusted) {
      return;
    }
    end();
    if (drag) {
      keepFromPage(e);
      if (drag.over) {
        send(drag.isTaken ? "drop" : "dragleave", drag.over, e);
      }
      send("dragend", drag.source, e);
      drag = null;
    }
  }

  // In these the page's listeners run, to which the language is as the page made it.
  function safe(action) {
    return function (e) {
      try {
        action(e);
      } catch (ex) {
        // The page took a part of it away.
      }
    };
  }

  var listeners = [["dragstart", safe(onDragStart)], ["mousemove", safe(onMove)], ["mouseup", safe(onUp)]];

  function eachListener(action) {
    for (var i = 0; view && action && i < listeners.length; ++i) {
      action.call(view, listeners[i][0], listeners[i][1], true);
    }
  }

  function end() {
    try {
      eachListener(remove);
    } catch (e) {
      // The window is gone, and the listeners with it.
    }
  }

  return {
    // Before a press on o that a drag may follow.
    begin: function (o) {
      end();
      drag = null;
      view = window.top.__corvex__mozilla ? __corvex__nodeReader.ownerDocument(o).defaultView : null;
      eachListener(add);
    }
  };
})();
