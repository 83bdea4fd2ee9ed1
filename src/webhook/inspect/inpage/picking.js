// Gives: window.__corvex__picking, by which objects are picked in this page and its frames: it tells what was pressed,
// keeps the rest of the press from the page, and paints where the pointer is. Needs: the hook script.
window.__corvex__picking = window.__corvex__picking || (function () {
  // What would act on the page after the press that picks. Without these the hook would pick a second time, too.
  var swallowed = ["pointerup", "mouseup", "click", "dblclick", "auxclick", "contextmenu", "dragstart"];
  var presses = ["pointerdown", "mousedown", "touchend"];
  var moves = ["scroll", "resize"];
  var windows = [];
  var painted = null;
  var pressed = null;

  function stop(e) {
    e.stopImmediatePropagation();
    e.preventDefault();
  }

  function notePress(e) {
    if (e.type === "pointerdown") {
      // Prevented, it would keep the press from coming.
      e.stopImmediatePropagation();
      return;
    }
    pressed = __corvex__pickableObject(__corvex__srcElement(e));
  }

  function unpaint() {
    if (painted) {
      painted.replaceSync("");
    }
    // The same object is told of again when the pointer is over it next.
    __corvex__recordingState.selectedObject = undefined;
  }

  function eachListener(w, method) {
    var rows = [[swallowed, stop], [presses, notePress], [moves, unpaint]];
    for (var i = 0; i < rows.length; ++i) {
      for (var j = 0; j < rows[i][0].length; ++j) {
        w[method](rows[i][0][j], rows[i][1], true);
      }
    }
  }

  function watch(w) {
    if (windows.indexOf(w) < 0) {
      windows.push(w);
      eachListener(w, "addEventListener");
    }
    var frames = w.top.__corvex ? w.top.__corvex.getAllFrames(w.document) : [];
    for (var i = 0; i < frames.length; ++i) {
      try {
        if (frames[i].contentWindow.document && windows.indexOf(frames[i].contentWindow) < 0) {
          watch(frames[i].contentWindow);
        }
      } catch (e) {
        // Of another origin.
      }
    }
  }

  // In the view of the page that holds all frames around the element.
  function boxOf(element) {
    var box = __corvex__askNode.Element.getBoundingClientRect(element);
    var result = { left: box.left, top: box.top, width: box.width, height: box.height, win: null };
    var w = __corvex__getDocumentForNode(element).defaultView;
    for (; w !== w.parent && w.frameElement; w = w.parent) {
      var frame = __corvex__askNode.Element.getBoundingClientRect(w.frameElement);
      result.left += frame.left + w.frameElement.clientLeft;
      result.top += frame.top + w.frameElement.clientTop;
    }
    result.win = w;
    return result;
  }

  function cssText(text) {
    return text.replace(/[^A-Za-z0-9]/g, function (character) {
      return "\\" + character.charCodeAt(0).toString(16) + " ";
    });
  }

  function rule(place, properties) {
    return "html::" + place + "{" + ("all:initial;position:fixed;z-index:2147483647;pointer-events:none;" +
      "box-sizing:border-box;" + properties).replace(/;/g, "!important;") + "}";
  }

  var labelHeight = 20;
  function sheetText(box, name) {
    var isRoomAbove = box.top >= labelHeight;
    var isRoomBelow = box.top + box.height + labelHeight <= box.win.innerHeight;
    var top = isRoomAbove ? box.top - labelHeight : isRoomBelow ? box.top + box.height : 0;
    return rule("before", 'content:"";left:' + box.left + "px;top:" + box.top + "px;width:" + box.width +
      "px;height:" + box.height + "px;border:2px solid #c2185b;background:rgba(194,24,91,.15);") +
      rule("after", 'content:"' + cssText(name) + '";left:' +
        Math.max(0, Math.min(box.left, box.win.innerWidth - 300)) + "px;top:" + top + "px;height:" + labelHeight +
        "px;max-width:100vw;overflow:hidden;white-space:pre;background:#c2185b;color:#fff;font:12px/20px monospace;" +
        "padding:0 4px;");
  }

  return {
    // To be called again and again: the hook ends the picking after a press, and frames come and go.
    arm: function () {
      window.__corvex__pickObject = true;
      watch(window);
    },

    // A style sheet that no element holds paints the box and the name: the page's elements stay as they are.
    paint: function (rect, name) {
      var element = __corvex__recordingState.mouseElement;
      // The object may be one of another page.
      if (!element || String(__corvex__getScreenRect(element)) !== rect) {
        return;
      }
      var box = boxOf(element);
      if (!painted) {
        painted = new box.win.CSSStyleSheet();
      }
      painted.replaceSync(sheetText(box, name));
      var sheets = box.win.document.adoptedStyleSheets;
      if (Array.prototype.indexOf.call(sheets, painted) < 0) {
        sheets.push(painted);
      }
    },

    whatIsPressed: function () {
      return pressed ? __corvex__contextOf(__corvex__currentContext(pressed)) + "\n" +
        __corvex__qualifiedName(pressed).replace(/\s*$/, "") : "";
    },

    take: function () {
      var taken = pressed;
      pressed = null;
      return taken;
    },

    end: function () {
      window.__corvex__pickObject = false;
      unpaint();
      for (var i = 0; i < windows.length; ++i) {
        try {
          eachListener(windows[i], "removeEventListener");
        } catch (e) {
          // The frame is gone.
        }
      }
      var sheets = document.adoptedStyleSheets;
      var at = painted ? Array.prototype.indexOf.call(sheets, painted) : -1;
      if (at >= 0) {
        sheets.splice(at, 1);
      }
      delete window.__corvex__picking;
    }
  };
}());
window.__corvex__picking.arm();
