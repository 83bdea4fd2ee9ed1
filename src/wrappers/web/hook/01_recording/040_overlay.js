// Gives: the overlay with the DOM path and the name of an object that was clicked with its keys held.
// Needs: runtime/natives, runtime/builtins, runtime/nodes, runtime/elementpos, names/hierarchy, names/entry.

// What stands in the overlay, with a text or a function that makes it from the object.
var __corvex__overlayButton = [
  { tag: "button", text: "Close", style: "text-align:right;margin-bottom:1em;background-color:inherit" },
  { tag: "br" }
];
var __corvex__overlayForm = [
  {
    tag: "label",
    attributes: { "for": "__corvex__info__domPath" },
    style: "margin-left:.2em;margin-right:2em;vertical-align:top;margin-bottom:1em",
    text: "DOM Path:"
  },
  {
    tag: "textarea",
    attributes: { name: "__corvex__info__domPath", rows: "3", cols: "40" },
    style: "margin-right:.2em;",
    text: function (obj) {
      return __corvex__qualifiedName(obj);
    }
  },
  { tag: "br" },
  {
    tag: "label",
    attributes: { "for": "__corvex__info__name" },
    style: "margin-left:.2em;margin-right:2em;vertical-align:top;margin-top:1em",
    text: "Real Name:"
  },
  {
    tag: "textarea",
    attributes: { name: "__corvex__info__name", rows: "3", cols: "25" },
    style: "margin-right:.2em;",
    text: function (obj) {
      return unescape(__corvex__nameOf(obj));
    }
  }
];

function __corvex__isInfoDiv(elem) {
  try {
    return !!elem && (!!elem.__corvex__isinfo || __corvex__attributeOf(elem, "__corvex__isinfo") === "true");
  } catch (e) {
    return false;
  }
}

// On Mac OS, Ctrl+Alt opens the context menu.
function __corvex__isOverlayKeyComboPressed(ev) {
  return !!(window.top.__corvex__os === "MacOSX" ? ev.altKey && ev.metaKey : ev.ctrlKey && ev.altKey);
}

// Removes the first child of the body that isMeant accepts.
function __corvex__removeInfoDiv(isMeant) {
  for (var node = __corvex__nodeReader.firstChild(document.body); node; node = __corvex__nodeReader.nextSibling(node)) {
    if (isMeant(node)) {
      document.body.removeChild(node);
      return;
    }
  }
}

// Made node by node: a page may forbid markup from scripts, and names hold whatever a page writes.
function __corvex__addOverlayParts(parent, parts, obj) {
  for (var i = 0; i < parts.length; ++i) {
    var element = document.createElement(parts[i].tag);
    element.setAttribute("__corvex__isinfo", "true");
    for (var name in parts[i].attributes) {
      if (__corvex__natives.has(parts[i].attributes, name)) {
        element.setAttribute(name, parts[i].attributes[name]);
      }
    }
    if (parts[i].style) {
      element.style.cssText = parts[i].style;
    }
    if (parts[i].text) {
      var text = typeof parts[i].text === "function" ? parts[i].text(obj) : parts[i].text;
      element.appendChild(document.createTextNode(text));
    }
    parent.appendChild(element);
  }
}

function __corvex__fillObjectInfoDiv(obj, divelem) {
  try {
    divelem.textContent = "";
    __corvex__addOverlayParts(divelem, __corvex__overlayButton, obj);
    __corvex__addOverlayParts(divelem, [{ tag: "form" }], obj);
    __corvex__addOverlayParts(__corvex__nodeReader.lastChild(divelem), __corvex__overlayForm, obj);
  } catch (e) {
    // The page is not to be disturbed by it.
  }
}

function __corvex__showObjectInfoDiv(obj, xy) {
  try {
    var div = document.createElement("DIV");
    div.id = "__corvex__web__info__overlay";
    div.style.position = "absolute";
    div.style.top = (xy.y - 15) + "px";
    div.style.left = (xy.x - 15) + "px";
    div.style.backgroundColor = "inherit";
    div.style.zIndex = 1000000;
    div.style.borderStyle = "solid";
    div.style.borderWidth = "1px";
    div.__corvex__isinfo = true;
    document.body.appendChild(div);
    div.textContent = "Calculating object name";
    // The text is to be seen: finding the name of an object can take long.
    __corvex__later(function () {
      __corvex__fillObjectInfoDiv(obj, div);
    }, 500);
  } catch (e) {
    // As above.
  }
}

function __corvex__openOverlay(scr, ev) {
  var at = __corvex__elementPos(scr);
  var isInside = !!ev.offsetX;
  __corvex__showObjectInfoDiv(scr, {
    x: at.x + (isInside ? ev.offsetX : ev.clientX),
    y: at.y + (isInside ? ev.offsetY : ev.clientY)
  });
  if (ev.returnValue) {
    ev.returnValue = false;
  }
  if (ev.preventDefault) {
    ev.preventDefault();
  }
}

// True for the overlay's own events and false for those that open it: the recorder sees neither. Undefined for others.
function __corvex__checkForObjectOverlayRelatedEvent(scr, ev) {
  if (!scr || !scr.getAttribute || !__corvex__nodeReader.tagName(scr)) {
    return undefined;
  }
  if (__corvex__isInfoDiv(scr)) {
    if (ev.type === "mousedown" && __corvex__nodeReader.tagName(scr) === "BUTTON") {
      __corvex__removeInfoDiv(function (node) {
        return node.__corvex__isinfo;
      });
    }
    return true;
  }
  if (ev.type === "mousedown") {
    __corvex__removeInfoDiv(__corvex__isInfoDiv);
  }
  // Browsers differ in the number of the left button.
  if (ev.type === "click" && __corvex__isOverlayKeyComboPressed(ev) && (ev.button === 0 || ev.button === 1)) {
    __corvex__openOverlay(scr, ev);
    return false;
  }
  return undefined;
}
