// Gives: while the page is recorded, what a person does there besides presses and keys: context menus that the page shows
// itself, drags, presses that cannot be recorded, and the checks that are chosen in the overlay.
// Needs: the hook script, recordedchecks.
(function () {
  // So far the pointer goes before a press is a drag, in CSS pixels.
  var dragDistance = 12;
  var pressed = null;
  var dragged = null;

  function send(e, text, object) {
    __corvex__sendLogEventData(e, "event=" + text + "&object=" + __corvex__nameOf(object) + "&context=" +
      __corvex__contextOfForUrl(__corvex__currentContext(object)) + __corvex__tabIdLogEventParameter(), true);
  }

  function objectAt(e) {
    return __corvex__eventObject(__corvex__srcElement(e));
  }

  function placeIn(e, object) {
    var box = __corvex__askNode.Element.getBoundingClientRect(object);
    return "&x=" + Math.round(e.clientX - box.left) + "&y=" + Math.round(e.clientY - box.top);
  }

  // What is recorded of an object later, when it may have another name and be in another place.
  function noted(e) {
    var object = objectAt(e);
    return {
      object: object,
      name: __corvex__nameOf(object),
      context: __corvex__contextOfForUrl(__corvex__currentContext(object)),
      x: e.clientX,
      y: e.clientY
    };
  }

  // The overlay is no part of the page, and a press that picks goes to nobody.
  function isOurs(e) {
    return __corvex__isInfoDiv(__corvex__srcElement(e)) || !!window.__corvex__pickObject;
  }

  // The browser's own menu is no part of the page.
  function noteMenu(e) {
    if (isOurs(e)) {
      return;
    }
    var object = objectAt(e);
    var place = placeIn(e, object);
    __corvex__later(function () {
      if (e.defaultPrevented) {
        send(e, "contextmenu" + place, object);
      }
    }, 0);
  }

  function noteDragStart(e) {
    dragged = isOurs(e) ? null : noted(e);
  }

  function sendDrag(e, from, to) {
    __corvex__sendLogEventData(e, "event=drag&object=" + from.name + "&to=" + __corvex__nameOf(to) + "&toContext=" +
      __corvex__contextOfForUrl(__corvex__currentContext(to)) + "&context=" + from.context +
      __corvex__tabIdLogEventParameter(), true);
  }

  function noteDrop(e) {
    // What comes from another window or program has not begun here.
    if (dragged && !isOurs(e)) {
      sendDrag(e, dragged, objectAt(e));
    }
    dragged = null;
  }

  function isIn(node, ancestor) {
    for (; node; node = __corvex__nodeReader.parentNode(node)) {
      if (node === ancestor) {
        return true;
      }
    }
    return false;
  }

  function cannotRecord(e, object, what) {
    send(e, "unrecorded&what=" + escape(what), object);
  }

  function notePress(e) {
    var source = __corvex__srcElement(e);
    dragged = null;
    pressed = null;
    if (isOurs(e)) {
      return;
    }
    if (__corvex__nodeReader.tagName(source) === "CANVAS" && !__corvex__isHookedWasmCanvas(source)) {
      cannotRecord(e, source, "canvas");
    } else if (e.button === 0) {
      pressed = noted(e);
    }
  }

  // The first object under the pointer that is not the one that is dragged along.
  function targetOf(e, from) {
    var all = __corvex__getDocumentForNode(from).elementsFromPoint(e.clientX, e.clientY);
    for (var i = 0; i < all.length; ++i) {
      if (!isIn(all[i], from) && !isIn(from, all[i])) {
        return __corvex__eventObject(all[i]);
      }
    }
    return null;
  }

  // A list that makes room for what is dragged moves the object that stood there towards where the drag began.
  function siblingPassed(e, from) {
    var nearest = null;
    var least = Infinity;
    var node = __corvex__nodeReader.firstChild(__corvex__nodeReader.parentNode(from.object));
    for (; node; node = __corvex__nodeReader.nextSibling(node)) {
      if (node === from.object || __corvex__nodeReader.tagName(node) !== __corvex__nodeReader.tagName(from.object)) {
        continue;
      }
      var box = __corvex__askNode.Element.getBoundingClientRect(node);
      var x = (box.left + box.right) / 2 - e.clientX;
      var y = (box.top + box.bottom) / 2 - e.clientY;
      var distance = Math.abs(x) + Math.abs(y);
      if (distance < least && x * (from.x - e.clientX) + y * (from.y - e.clientY) > 0 &&
          __corvex__isVisible(node) && distance < 2 * (box.width + box.height)) {
        nearest = node;
        least = distance;
      }
    }
    return nearest && __corvex__eventObject(nearest);
  }

  // What is dragged there is its own knob, or marks its text.
  function isField(object) {
    return /^(INPUT|TEXTAREA|SELECT)$/.test(__corvex__nodeReader.tagName(object));
  }

  // Pages that move objects by the pointer's events prevent what the browser would do, such as selecting text.
  function noteRelease(e) {
    var from = pressed;
    pressed = null;
    if (!from || dragged || Math.abs(e.clientX - from.x) + Math.abs(e.clientY - from.y) < dragDistance ||
        String(window.getSelection()) || isField(from.object)) {
      return;
    }
    var to = targetOf(e, from.object) || siblingPassed(e, from);
    if (to) {
      sendDrag(e, from, to);
    } else {
      cannotRecord(e, from.object, "drag");
    }
  }

  // The focus goes into a frame whose page tells nothing of what is done there.
  function noteBlur() {
    var frame = document.activeElement;
    try {
      if (!frame || !/^I?FRAME$/.test(__corvex__nodeReader.tagName(frame)) || frame.contentWindow.document) {
        return;
      }
    } catch (e) {
      // Of another origin.
    }
    cannotRecord(undefined, frame, "frame");
  }

  var rows = [["contextmenu", noteMenu], ["dragstart", noteDragStart], ["drop", noteDrop],
    ["mousedown", notePress], ["mouseup", noteRelease]];
  // Pages stop events at the window, where no document gets them.
  function take(e) {
    __corvex__handleOnce(e, this === window ? undefined : this.document);
  }

  function takeChange(e) {
    var source = __corvex__srcElement(e);
    if (source.__corvex__onchange === true) {
      __corvex__handleOnce(e, source);
    }
  }

  rows.push(["keyup", take], ["mousedown", take], ["click", take], ["dblclick", take], ["change", takeChange]);
  for (var i = 0; i < rows.length; ++i) {
    rows[i][1] = __corvex__quiet(rows[i][1]);
  }
  rows.push(["blur", __corvex__quiet(function (e) {
    if (e.target === window) {
      __corvex__later(noteBlur, 0);
    }
  })]);

  // One listener stays one, however often it is added. What opens the overlay is nothing else.
  function listen(w) {
    window.__corvex__listenForChecks(w);
    for (var j = 0; j < rows.length; ++j) {
      w.addEventListener(rows[j][0], rows[j][1], true);
    }
  }

  // Frames come and go.
  function listenInFrames() {
    __corvex__firstInFrames(document, function (w) {
      listen(w);
    });
    __corvex__later(listenInFrames, 1000);
  }

  listen(window);
  __corvex__later(listenInFrames, 1000);
}());
