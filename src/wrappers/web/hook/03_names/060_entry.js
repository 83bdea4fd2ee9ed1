// Gives: __corvex__nameOf and __corvex__propertyNameOf.
// Needs: runtime/state, runtime/nodes, runtime/contexts, runtime/text, names/properties, names/rules, names/unique,
//   names/hierarchy.

var __corvex__textElements = { SPAN: 1, DIV: 1, LI: 1, TD: 1, TR: 1, LABEL: 1 };
var __corvex__controlElements = { INPUT: 1, SELECT: 1, BUTTON: 1 };

function __corvex__enclosingLink(o) {
  while (o && __corvex__nodeReader.tagName(o) !== "A") {
    o = __corvex__nodeReader.parentNode(o);
  }
  return o;
}

// The rule for an element that is neither control nor image nor part of a link; undefined if none applies.
function __corvex__nameOfPlainElement(o, forceMultiProp) {
  var tagName = __corvex__nodeReader.tagName(o);
  if (tagName && (o.name || o.title || (__corvex__idsAreNamed() && __corvex__nodeReader.id(o)))) {
    return __corvex__nameOfNamedElement(o);
  }
  if (__corvex__textElements[String(tagName).toUpperCase()] === 1 && __corvex__clean(o.innerText)) {
    return __corvex__nameOfSpanOrDiv(o);
  }
  return forceMultiProp === true ? __corvex__nameOfNamedElement(o) : undefined;
}

function __corvex__propertyNameOf(o, noUnify, forceMultiProp) {
  var tagName = __corvex__nodeReader.tagName(o);
  var name, link;
  if (__corvex__controlElements[tagName] === 1) {
    name = __corvex__nameOfInput(o);
  } else if (tagName === "TD" && __corvex__attributeOf(o, "class") === "cMenuTD") {
    name = __corvex__nameOfCMenu(o);
  } else if (tagName === "IMG") {
    name = __corvex__nameOfImage(o);
  } else {
    link = __corvex__enclosingLink(o);
    if (link) {
      o = link;
      name = __corvex__nameOfLink(o);
    } else {
      name = __corvex__nameOfPlainElement(o, forceMultiProp);
    }
  }
  if (!name) {
    return o === window ? "[Window]" : escape(__corvex__qualifiedName(o));
  }
  name = __corvex__addVisibility(name, o);
  name = __corvex__nameAddContainerToName(name, o);
  return escape(__corvex__uniquifyName(name, o, noUnify));
}

function __corvex__addFrameContextToName(objectToGenerateNameFor, objectName) {
  if (objectName === "[Window]") {
    return objectName;
  }
  var ctx = __corvex__currentContext(objectToGenerateNameFor);
  var ectx = __corvex__windowState.explicitContext || window;
  if (ctx && ectx && ctx === ectx) {
    return objectName;
  }
  var name = unescape(objectName);
  var context = __corvex__contextOfForUrl(ctx);
  if (name.charAt(0) === "{") {
    return escape("{context='" + context + "' " + unescape(name).substring(1));
  }
  return escape("DOCUMENT[" + context.replace(/\./g, "|") + "]." + name.substring(9));
}

function __corvex__nameOf(o, noUnify) {
  if (!o) {
    return "[Window]";
  }
  var scheme = window.top.__corvex__namegen__scheme;
  /* eslint-disable eqeqeq -- a driver may give one as a number and the other as a text */
  if (scheme == window.top.__corvex__namegen__singleprop) {
    return escape(__corvex__nameOfBySingleProp(o));
  }
  if (scheme == window.top.__corvex__namegen__hierarchical) {
    return __corvex__addFrameContextToName(o, escape(__corvex__qualifiedName(o)));
  }
  /* eslint-enable eqeqeq */
  var hooks = window.__corvex__nameOf__hooks;
  for (var i = 0; i < hooks.length; ++i) {
    var name = hooks[i](o);
    if (name) {
      return __corvex__addFrameContextToName(o, name);
    }
  }
  return __corvex__addFrameContextToName(o, __corvex__propertyNameOf(o, noUnify));
}
