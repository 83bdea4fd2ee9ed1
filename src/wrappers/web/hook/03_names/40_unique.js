// Gives: what a name gets beside the element's own properties: visible, container, occurrence.
// Needs: the search by properties, __corvex__isShadowRoot and __corvex__isVisible when called.

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
  var root = o.getRootNode();
  if (!__corvex__isShadowRoot(root)) {
    return name;
  }
  return "{container=" + unescape(__corvex__propertyNameOf(root.host, false, true)) + " " + name.substring(1);
}

// Adds the ordinal that makes the search find o by this name. The search goes on in the document where it hit first,
// so the ordinal is o's place among the hits in that document; only for an o that lies elsewhere one ordinal after the
// other has to be tried.
function __corvex__uniquifyName(n, o, ignore) {
  if (ignore === true || (n.charAt(0) !== "{" && n.charAt(n.length - 1) !== "}")) {
    return n;
  }
  var head = n.substring(0, n.length - 1) + " occurrence='";
  var found = __corvex__findObjectByProps4(n);
  if (!found || found === o) {
    return n;
  }
  var counter = __corvex__occurrenceInDocument(__corvex__ctxwin.document, n, o);
  if (counter > 1) {
    return head + counter + "'}";
  }
  counter = 1;
  while (found !== o) {
    ++counter;
    found = __corvex__findObjectByProps4(head + counter + "'}");
    if (!found) {
      return n;
    }
  }
  return head + counter + "'}";
}
