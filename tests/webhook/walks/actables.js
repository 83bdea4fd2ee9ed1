// What a person could act on in a window now, in the order of its documents. `index` -1: how many things there are; -2:
// whether what has the focus leads to no page of this server. Else the one of this number, in view: "kind|x|y|what it is", or "" where something is on top of it.
(function (index) {
  var textTypes = /^(text|search|url|tel|email|password|number)$/;
  var keyTypes = /^range$/;
  // Some show windows of the browser's own, and others are filled in parts, of which a page knows nothing.
  var never = /^(file|hidden|color|image|month|week|time|datetime-local)$/;
  var clicked = "a[href],button,input,summary,label,option,[onclick],[role=tab],[role=button],[role=checkbox],[role=option],[role=menuitem]";
  var found = [];

  function isInView(node) {
    var style = getComputedStyle(node);
    var box = node.getBoundingClientRect();
    return box.width > 2 && box.height > 2 && style.visibility === "visible" && style.pointerEvents !== "none";
  }
  function isPointed(node) {
    function cursor(n) { return n && n.nodeType === 1 ? getComputedStyle(n).cursor : ""; }
    return cursor(node) === "pointer" && cursor(node.parentNode) !== "pointer" && !node.querySelector(clicked);
  }
  function leadsAway(node) {
    return node.tagName === "A" && (node.origin !== location.origin || !/\.html$/.test(node.pathname));
  }
  function kindOf(node) {
    var type = node.type;
    if (node.disabled || (node.tagName === "INPUT" && never.test(type)) || leadsAway(node)) {
      return "";
    }
    if (node.tagName === "SELECT") {
      return node.multiple || node.size > 1 ? "" : "list";
    }
    if (node.tagName === "OPTION") {
      var list = node.closest("select");
      return list.multiple || list.size > 1 ? "click" : "";
    }
    if (node.tagName === "TEXTAREA" || (node.tagName === "INPUT" && textTypes.test(type))) {
      return node.readOnly ? "click" : "text";
    }
    if (node.tagName === "INPUT" && keyTypes.test(type)) {
      return "keys";
    }
    if (node.tagName === "INPUT" && node.type === "date") {
      return "date";
    }
    if (node.isContentEditable) {
      return node.parentNode.isContentEditable ? "" : "text";
    }
    return node.matches(clicked) || isPointed(node) ? "click" : "";
  }
  function collect(root, frames) {
    [].forEach.call(root.querySelectorAll("*"), function (node) {
      var kind = kindOf(node);
      if (kind && isInView(node)) {
        found.push({ node: node, kind: kind, frames: frames });
      }
      if (node.shadowRoot) {
        collect(node.shadowRoot, frames);
      }
      if (node.tagName === "IFRAME") {
        try {
          collect(node.contentDocument, frames.concat(node));
        } catch (e) {
          // Of another origin, or not there yet.
        }
      }
    });
  }
  function contains(node, inner) {
    for (; inner; inner = inner.parentNode || inner.host) {
      if (inner === node) {
        return true;
      }
    }
    return false;
  }
  function topmost(root, x, y) {
    var node = root.elementFromPoint(x, y);
    return node && node.shadowRoot ? topmost(node.shadowRoot, x, y) || node : node;
  }
  // The place in the window, or nothing where another element would get the press.
  function place(thing) {
    thing.node.scrollIntoView({ block: "center", behavior: "instant" });
    var box = thing.node.getClientRects()[0];
    var x = box.left + box.width / 2, y = box.top + box.height / 2;
    var inner = topmost(thing.node.ownerDocument, x, y);
    var isOnTop = !!inner && contains(thing.node, inner);
    thing.frames.slice().reverse().forEach(function (frame) {
      var outside = frame.getBoundingClientRect();
      x += outside.left + frame.clientLeft;
      y += outside.top + frame.clientTop;
      isOnTop = isOnTop && topmost(frame.ownerDocument, x, y) === frame;
    });
    return isOnTop && x > 0 && y > 0 && x < innerWidth && y < innerHeight ? [x, y] : null;
  }
  function nameOf(thing) {
    var node = thing.node;
    var text = node.id || node.name || node.value || node.textContent || "";
    return new Array(thing.frames.length + 1).join("frame ") + node.tagName + (node.type ? " " + node.type : "") + " " +
      String(text).replace(/\s+/g, " ").trim().slice(0, 30);
  }

  function focused(doc) {
    var node = doc.activeElement;
    return node && node.contentDocument ? focused(node.contentDocument) : node;
  }

  if (index < -1) {
    return !!focused(document) && leadsAway(focused(document));
  }
  collect(document, []);
  if (index < 0) {
    return found.length;
  }
  var thing = found[index];
  var point = thing && place(thing);
  if (point && /^(list|date)$/.test(thing.kind)) {
    // As a person comes there with the Tab key; a press would open a list of the browser's own. A date begins with its
    // first part.
    thing.node.blur();
    thing.node.focus();
  }
  return point ? [thing.kind, point[0], point[1], nameOf(thing)].join("|") : "";
})
