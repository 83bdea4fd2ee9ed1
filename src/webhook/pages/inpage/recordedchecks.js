// Gives: while the page is recorded, a choice of checks in the overlay that a click with its keys opens: the driver is told
// what the object shows now; __corvex__listenForChecks( w ) for a frame. Needs: the hook script.
(function () {
  var asked = null;

  var kinds = [
    ["text", function (object) {
      return window.top.__corvex.getSimplifiedInnerText(object);
    }],
    ["value", function (object) {
      // A password is not to be read in a script.
      return typeof object.value === "string" && object.type !== "password" ? object.value : undefined;
    }],
    ["checked", function (object) {
      return /^(checkbox|radio)$/.test(object.type) ? String(object.checked) : undefined;
    }],
    ["visible", function (object) {
      return String(__corvex__isVisible(object));
    }],
    // The driver takes it.
    ["picture", function () {
      return "";
    }]
  ];

  function tell(e, what) {
    for (var i = 0; asked && i < kinds.length; ++i) {
      if (kinds[i][0] === what) {
        __corvex__sendLogEventData(e, "event=check&what=" + what + "&value=" + escape(kinds[i][1](asked)) + "&object=" +
          __corvex__nameOf(asked) + "&context=" + __corvex__contextOfForUrl(__corvex__currentContext(asked)) +
          __corvex__tabIdLogEventParameter(), true);
      }
    }
  }

  function addChoice() {
    var overlay = document.getElementById("__corvex__web__info__overlay");
    for (var i = 0; overlay && i < kinds.length; ++i) {
      if (kinds[i][1](asked) !== undefined) {
        __corvex__addOverlayParts(overlay, [{
          tag: "button",
          text: "Check " + kinds[i][0],
          attributes: { "data-check": kinds[i][0] },
          style: "margin:.2em"
        }], asked);
      }
    }
  }

  // The overlay stands in the page, also for an object of a frame.
  function moveToFrame(e, w) {
    var overlay = document.getElementById("__corvex__web__info__overlay");
    if (overlay && w !== window) {
      var frame = __corvex__framePositionInView(w);
      overlay.style.left = (frame.x + e.clientX + __corvex__getPageOffsetX() - 15) + "px";
      overlay.style.top = (frame.y + e.clientY + __corvex__getPageOffsetY() - 15) + "px";
    }
  }

  function note(e) {
    var source = __corvex__srcElement(e);
    if (__corvex__isInfoDiv(source)) {
      // The press on a button removes the overlay.
      var what = e.type === "mousedown" && __corvex__attributeOf(source, "data-check");
      if (what) {
        tell(e, what);
      }
      return;
    }
    if (!__corvex__isOverlayKeyComboPressed(e)) {
      return;
    }
    // The page and the recording get nothing of it.
    e.stopImmediatePropagation();
    e.preventDefault();
    __corvex__checkForObjectOverlayRelatedEvent(source, e);
    if (e.type === "click") {
      moveToFrame(e, this);
      asked = __corvex__eventObject(source);
      // The overlay is filled after half a second.
      __corvex__later(addChoice, 600);
    }
  }

  window.__corvex__enableObjectInfoOverlay = true;
  var types = ["mousedown", "mouseup", "click"];
  var quietNote = __corvex__quiet(note);

  // One listener stays one, however often it is added.
  window.__corvex__listenForChecks = function (w) {
    for (var i = 0; i < types.length; ++i) {
      w.addEventListener(types[i], quietNote, true);
    }
  };
  window.__corvex__listenForChecks(window);
}());
