// Gives: what a name gets beside the element's own properties: visible, container, occurrence.
// Needs: runtime/state, runtime/nodes, names/entry, visibility, search/properties, search/documents.

function __corvex__addVisibility(name, obj) {
  if (name.charAt(0) !== "{") {
    return name;
  }
  return "{visible='" + (__corvex__isVisible(obj) ? "true" : "false") + "' " + name.substring(1);
}

function __corvex__nameAddContainerToName(name, o) {
  if (typeof ShadowRoot === "undefined" || name.charAt(0) !== "{" || !o.getRootNode) {
    return name;
  }
  var root = __corvex__askNode.Node.getRootNode(o);
  if (!__corvex__isShadowRoot(root)) {
    return name;
  }
  return "{container=" + unescape(__corvex__propertyNameOf(root.host, false, true)) + " " + name.substring(1);
}

// Adds the ordinal that makes the search find o by this name. A search stays in the document of the current context as
// long as that has enough hits: so the ordinal is o's place there, or the next one to try is the first that is too high
// for it and makes the search, and the context with it, move on.
function __corvex__uniquifyName(n, o, ignore) {
  if (ignore === true || (n.charAt(0) !== "{" && n.charAt(n.length - 1) !== "}")) {
    return n;
  }
  var head = n.substring(0, n.length - 1) + " occurrence='";
  var found = __corvex__findObjectByProps4(n);
  var counter = 1;
  while (found && found !== o) {
    var hits = __corvex__hitsInDocument(__corvex__windowState.ctxwin.document, n, o, counter);
    if (hits.place !== 0) {
      return head + hits.place + "'}";
    }
    counter = Math.max(counter, hits.count) + 1;
    found = __corvex__findObjectByProps4(head + counter + "'}");
  }
  return found && counter > 1 ? head + counter + "'}" : n;
}
