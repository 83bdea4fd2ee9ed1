// Gives: the pieces of a multi-property name: one property's text, escaping, ids without generated parts.
// Needs: runtime/nodes, runtime/text, simplifiedtext.

// A wildcard or exact value can hold any character but these two.
function __corvex__escapeCharactersInPropertyValue(input) {
  return input.replace(/\\/g, "\\\\").replace(/'/g, "\\'");
}

// Two server frameworks put parts into ids that differ from page load to page load.
function __corvex__idHelper(id) {
  var pos, end;
  try {
    pos = id.indexOf("jbg_");
    if (pos !== -1) {
      id = id.substring(pos + 4);
      end = id.indexOf("_");
      if (end !== -1) {
        id = id.substring(end + 1);
      }
    }
  } catch (e) { /* no id, or one that is no text */ }
  try {
    pos = id.indexOf("_ctrl");
    if (pos !== -1) {
      end = id.indexOf("_", pos + 1);
      id = id.substring(0, pos) + (end === -1 ? "" : id.substring(end + 1));
    }
  } catch (e) { /* as above */ }
  return id;
}

function __corvex__propertyText(name, operator, value) {
  return name + operator + "'" + __corvex__escapeCharactersInPropertyValue(value) + "' ";
}

// The text name='value' and a space for the property n of o, or an empty text. nm: the name to write instead of n.
function __corvex__nameHelper(o, n, nm) {
  var value;
  if (n === "simplifiedInnerText") {
    value = window.top.__corvex.getSimplifiedInnerText(o);
  } else {
    value = n === "tagName" || n === "id" ? __corvex__nodeReader[n](o) : o[n];
    if (n === "id") {
      value = __corvex__idHelper(value);
    } else if (n === "innerText") {
      value = __corvex__clean(value);
    }
  }
  return value ? __corvex__propertyText(nm || n, "=", value) : "";
}

function __corvex__propsToNameStr(o, props) {
  var text = "";
  for (var i = 0; i < props.length; ++i) {
    if (typeof props[i] !== "function") {
      text += __corvex__nameHelper(o, props[i]);
    }
  }
  return text;
}

function __corvex__fixName(n) {
  return n.charAt(n.length - 1) === " " ? n.substring(0, n.length - 1) : n;
}

function __corvex__idsAreNamed() {
  return window.top.__corvex.includeIdPropertyInGeneratedNames;
}

function __corvex__optionallyIncludeIdPropertyInList(propList) {
  if (__corvex__idsAreNamed()) {
    propList.push("id");
  }
  return propList;
}
