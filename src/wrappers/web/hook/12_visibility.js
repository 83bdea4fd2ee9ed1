// Gives: computed styles one by one and at once, whether an element is shown at all, what tells if it can take input.
// Needs: runtime/natives, runtime/nodes, properties/values, csscolor.

function __corvex__styleInfo(elem) {
  this.obj = elem;
}

__corvex__styleInfo.prototype.hasComputedStyle = function (obj) {
  return !!__corvex__nodeReader.ownerDocument(obj).defaultView.getComputedStyle;
};

// Undefined where the style cannot be read.
__corvex__styleInfo.prototype.styleProperty = function (prop) {
  try {
    if (prop === undefined || !this.obj) {
      return undefined;
    }
    if (this.hasComputedStyle(this.obj)) {
      return __corvex__nodeReader.ownerDocument(this.obj).defaultView.getComputedStyle(this.obj, null)[prop];
    }
    var obj = this.obj;
    while (obj.currentStyle[prop] === "inherit") {
      obj = __corvex__nodeReader.parentNode(obj);
    }
    return obj.currentStyle[prop];
  } catch (e) {
    return undefined;
  }
};

// The values of the named properties: colours as records of their components, what cannot be read as "undefined".
function __corvex__allCSSProperties(domObj, propNames) {
  var style = new __corvex__styleInfo(domObj);
  var all = {};
  for (var i = 0; i < propNames.length; ++i) {
    var value = style.styleProperty(propNames[i]);
    var color = null;
    if (value !== undefined && propNames[i].toLowerCase().indexOf("color") >= 0) {
      try {
        color = __corvex__parseCSSColor(value);
      } catch (e) {
        color = null;
      }
    }
    all[propNames[i]] = color ? { red: color[0], green: color[1], blue: color[2], alpha: color[3] } :
      value === undefined ? "undefined" : value;
  }
  return all;
}

function __corvex__hasDisplayNone(elem) {
  try {
    // A document ends the walk: it has no style.
    var reader = __corvex__nodeReader;
    for (var node = elem; node && reader.nodeType(node) !== 9; node = reader.parentNode(node)) {
      if (new __corvex__styleInfo(node).styleProperty("display") === "none") {
        return true;
      }
    }
  } catch (e) {
    // A parent that cannot be asked hides nothing.
  }
  return false;
}

// The browser's own answer, which is the quick one. Only a yes counts: it says no of more than what is invisible here.
// Elements of images are not asked for: some engines lay out what is in a group that is not displayed.
var __corvex__isSurelyVisible = (function () {
  var check = __corvex__nativeFunction(window.Element && Element.prototype.checkVisibility);
  // In full: a page may give all objects members of these names.
  var options = {
    checkOpacity: false,
    checkVisibilityCSS: true,
    contentVisibilityAuto: false,
    opacityProperty: false,
    visibilityProperty: true
  };
  return function (elem) {
    try {
      return elem.ownerSVGElement === undefined && !!check && check.call(elem, options);
    } catch (e) {
      // No element.
      return false;
    }
  };
})();

function __corvex__isVisibleByStyle(elem) {
  try {
    if (!elem || elem === __corvex__nodeReader.ownerDocument(elem)) {
      return true;
    }
    var style = new __corvex__styleInfo(elem);
    // The computed visibility holds the parents' state already; the computed display does not.
    if (style.styleProperty("display") === "none" || style.styleProperty("visibility") === "hidden") {
      return false;
    }
    return !__corvex__hasDisplayNone(__corvex__nodeReader.parentNode(elem));
  } catch (e) {
    return true;
  }
}

function __corvex__isVisible(elem) {
  return __corvex__isSurelyVisible(elem) || __corvex__isVisibleByStyle(elem);
}

// The tag, whether the object is shown, whether it is disabled. Empty where one of them cannot be told.
function __corvex__readiness(object) {
  try {
    var read = window.top.__corvex.getPropertyValue;
    return "ready " + read(object, "tagName").replace(/\s*$/, "") + " " + __corvex__isVisible(object) + " " +
      read(object, "disabled");
  } catch (e) {
    return "";
  }
}

function __corvex__cssToPx(sizeVal) {
  return typeof sizeVal === "string" && /px$/.test(sizeVal) ? parseInt(sizeVal, 10) : sizeVal;
}
