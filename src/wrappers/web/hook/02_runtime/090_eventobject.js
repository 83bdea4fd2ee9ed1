// Gives: what an event "really" addressed: source, event object, event type.
// Needs: runtime/state, runtime/nodes, runtime/text, runtime/typing, visibility.

function __corvex__srcElement(e) {
  if (!e) {
    return undefined;
  }
  // The path sees through shadow roots.
  if (e.composedPath) {
    var path = e.composedPath();
    if (path && path.length > 0) {
      return path[0];
    }
  }
  return e.target || e.srcElement;
}

function __corvex__hasClickHandler(node) {
  return !!(__corvex__nodeReader.onclick(node) || __corvex__nodeReader.onmousedown(node) || node.onmousepress ||
            (node.ontouchend && node.touchstart));
}

function __corvex__isKnownWidget(className) {
  var widgets = window.__corvex__knownWidgets;
  for (var i = 0; i < widgets.length; ++i) {
    if (typeof widgets[i] !== "function" && __corvex__listContains(className, widgets[i].Class)) {
      return true;
    }
  }
  return false;
}

function __corvex__isBackbaseWidget(className) {
  var descriptors = __corvex__backbase__descriptors;
  for (var i = 0; i < descriptors.length; ++i) {
    if (typeof descriptors[i] !== "function" &&
        __corvex__listContains(className, descriptors[i][__corvex__backbase__className])) {
      return true;
    }
  }
  return false;
}

// Tested in this order on each node of a climb. A widget is the answer as it is; an action target has to be visible.
var __corvex__climbTests = [
  {
    isWidget: false,
    holds: function (node) {
      return !__corvex__isDocumentNode(node) && __corvex__hasClickHandler(node);
    }
  },
  {
    isWidget: false,
    holds: function (node) {
      return __corvex__nodeReader.tagName(node) === "BUTTON" && node.type === "submit";
    }
  },
  {
    isWidget: true,
    holds: function (node) {
      return __corvex__isKnownWidget(__corvex__nodeReader.className(node));
    }
  },
  {
    isWidget: false,
    holds: function (node) {
      var id = __corvex__nodeReader.id(node);
      return typeof id === "string" && id.indexOf("isc_") === 0;
    }
  },
  {
    isWidget: false,
    holds: function (node) {
      return __corvex__nodeReader.tagName(node) === "A" && !!node.href;
    }
  },
  {
    isWidget: true,
    holds: function (node) {
      return __corvex__isBackbaseWidget(__corvex__nodeReader.className(node));
    }
  }
];

// The widget around an inner element; null where the climb ends on nothing that a user could act on.
function __corvex__climbToWidget(o) {
  for (var node = o; node; node = __corvex__nodeReader.parentNode(node)) {
    for (var i = 0; i < __corvex__climbTests.length; ++i) {
      if (!__corvex__climbTests[i].holds(node)) {
        continue;
      }
      if (__corvex__climbTests[i].isWidget) {
        return node;
      }
      return !__corvex__isDocumentNode(node) && __corvex__isVisible(node) ? node : null;
    }
  }
  return null;
}

function __corvex__labelledControl(o) {
  if (!o || __corvex__nodeReader.tagName(o) !== "LABEL" || !o.htmlFor) {
    return null;
  }
  return __corvex__askDocument(__corvex__nodeReader.ownerDocument(o), "getElementById", o.htmlFor);
}

function __corvex__firstAnchorAbove(o) {
  var node = o;
  while (node && __corvex__nodeReader.tagName(node) !== "A") {
    node = __corvex__nodeReader.parentNode(node);
  }
  return node;
}

var __corvex__innerElementTypes = ["SPAN", "DIV", "[UNKNOWN_TYPE]", "IMG", "P", "B", "U", "I", "TR", "TD", "TH", "LI"];

function __corvex__isInnerElementType(type) {
  var upper = String(type).toUpperCase();
  for (var i = 0; i < __corvex__innerElementTypes.length; ++i) {
    if (__corvex__innerElementTypes[i] === upper) {
      return true;
    }
  }
  return false;
}

// An element without handlers of its own still counts as clickable once it was clicked.
function __corvex__markAsClicked(elem) {
  try {
    if (String(__corvex__nodeReader.tagName(elem)).toUpperCase() !== "OPTION" && !__corvex__hasClickHandler(elem)) {
      elem.__corvex__onclick = true;
    }
  } catch (e) {
    // The mark is a hint; an object that takes no properties goes without.
  }
}

function __corvex__eventObject(o) {
  if (!o) {
    return o;
  }
  if (__corvex__nodeReader.tagName(o) === "TD" && __corvex__attributeOf(o, "class") === "cMenuTD") {
    return o;
  }
  var hooks = window.__corvex__eventObject__hooks;
  for (var i = 0; i < hooks.length; ++i) {
    var answer = hooks[i](o);
    if (answer) {
      return answer;
    }
  }
  var usable = __corvex__findUsableParentElement(o);
  var found = __corvex__labelledControl(usable);
  if (found) {
    return found;
  }
  var type = __corvex__typeOf(usable);
  if (type === "A" && __corvex__nodeReader.tagName(usable) !== "A") {
    found = __corvex__firstAnchorAbove(usable);
  } else if (__corvex__isInnerElementType(type)) {
    found = __corvex__climbToWidget(usable);
  }
  if (found) {
    return found;
  }
  __corvex__markAsClicked(o);
  return o;
}

function __corvex__eventType(o, e, objType) {
  var hooks = window.top.__corvex__eventType__hooks;
  for (var i = 0; i < hooks.length; ++i) {
    var answer = hooks[i](o, e, objType);
    if (answer) {
      return answer;
    }
  }
  return e.type;
}
