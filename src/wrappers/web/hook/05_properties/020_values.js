// Gives: window.top.__corvex.getPropertyValue and reservedJsKeywords: property values as the driver reads them.
// Needs: runtime/natives, runtime/nodes, browsers, input/objects.

window.top.__corvex.reservedJsKeywords = [
  "break", "case", "catch", "continue", "debugger", "default", "delete", "do", "else", "finally", "for", "function",
  "if", "in", "instanceof", "new", "return", "switch", "this", "throw", "try", "typeof", "var", "void", "while",
  "with", "class", "enum", "export", "extends", "import", "super", "implements", "interface", "let", "package",
  "private", "protected", "public", "static", "yield"
];

function __corvex__isReservedJsKeyword(name) {
  var words = window.top.__corvex.reservedJsKeywords;
  for (var i = 0; i < words.length; ++i) {
    if (words[i] === name) {
      return true;
    }
  }
  return false;
}

// Asked for every element of a search, so that the flags stand last: asking a window for what it does not have is dear.
function __corvex__hyphensAreProperties() {
  return window.top.__corvex__ie || window.top.__corvex__mozilla;
}

// Whether a value that was read as a property may exist as an attribute only, as hyphenated names do in most browsers.
function __corvex__wantsAttribute(propName, value) {
  var text = String(value);
  return (text === "" && propName.indexOf("-") !== -1 && !__corvex__hyphensAreProperties()) ||
    text === "undefined" || text.lastIndexOf("__CORVEX__ERROR", 0) === 0;
}

function __corvex__isEmptyText(value) {
  return !!value && value.length === 0;
}

function __corvex__readProperty(obj, propName) {
  var value = obj;
  var path = propName.split(".");
  for (var i = 0; i < path.length; ++i) {
    value = value[path[i]];
  }
  if (__corvex__wantsAttribute(propName, value)) {
    value = __corvex__getObjectAttribute(obj, propName);
    // Neither property nor attribute: that is no value, where a property that is null has one.
    if (value === null) {
      return undefined;
    }
  }
  if (__corvex__isEmptyText(value) && __corvex__isQWebViewBrowser()) {
    var attribute = __corvex__getObjectAttribute(obj, propName);
    if (attribute !== undefined && attribute !== null) {
      value = attribute;
    }
  }
  return value;
}

// They are texts, whatever a page makes of them, and the attributes that hold them.
var __corvex__textProperties = { id: "id", title: "title", className: "class", innerText: "", innerHTML: "" };

// What a field of a form hides by its name, or a page by a property of its own.
function __corvex__textBehind(obj, propName, value) {
  var attribute = __corvex__nodeReader.nodeType(obj) === 1 ? __corvex__textProperties[propName] : "";
  return typeof value !== "object" && typeof value !== "function" ? String(value) :
    (attribute && __corvex__attributeOf(obj, attribute)) || "";
}

function __corvex__propertyValue(obj, propName) {
  var value;
  try {
    if (__corvex__isReservedJsKeyword(propName)) {
      value = __corvex__attributeOf(obj, propName);
    } else {
      value = __corvex__readProperty(obj, propName);
    }
  } catch (e) {
    return "";
  }
  if (Object.prototype.toString.call(value).indexOf("SVG") !== -1) {
    value = value.baseVal;
  }
  if (value === undefined) {
    return "";
  }
  if (value !== null && typeof value !== "string" && __corvex__natives.has(__corvex__textProperties, propName)) {
    return __corvex__textBehind(obj, propName, value);
  }
  return value === null ? "null" : value;
}

window.top.__corvex.getPropertyValue = __corvex__propertyValue;
