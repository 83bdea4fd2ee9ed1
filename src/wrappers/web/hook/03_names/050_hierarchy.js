// Gives: __corvex__uniqueNameInLeaf, __corvex__leafNamer and __corvex__qualifiedName: hierarchical names.
// Needs: runtime/nodes, dom.

// The leaf of a node whatever its siblings are; empty if they have to be counted.
function __corvex__specialLeaf(o) {
  if (__corvex__isShadowRoot(o)) {
    return "SHADOW_ROOT";
  }
  if (!__corvex__nodeReader.parentNode(o)) {
    return "DOCUMENT";
  }
  return o.classname && String(o.classname).indexOf("qx") !== -1 ? "qx_Widget" : "";
}

function __corvex__uniqueNameInLeaf(o) {
  var special = __corvex__specialLeaf(o);
  if (special) {
    return special;
  }
  var tagName = __corvex__nodeReader.tagName(o);
  var count = 1;
  var sibling = __corvexDOMAPI.firstChild(__corvex__nodeReader.parentNode(o));
  while (sibling && sibling !== o) {
    if (__corvex__nodeReader.tagName(sibling) === tagName) {
      ++count;
    }
    sibling = __corvexDOMAPI.nextSibling(sibling);
  }
  return (tagName || "NODE") + count;
}

// A function to be called with all children of one node in their order, which gives the leaf of each. It counts on from
// child to child, where __corvex__uniqueNameInLeaf would count from the first one each time.
function __corvex__leafNamer() {
  var counts = {};
  return function (child) {
    var tagName = __corvex__nodeReader.tagName(child);
    // Behind a prefix, since a page may make an element of any name, NODE among them.
    var kind = tagName ? "tag " + tagName : "none";
    counts[kind] = (counts[kind] || 0) + 1;
    return __corvex__specialLeaf(child) || (tagName || "NODE") + counts[kind];
  };
}

function __corvex__qualifiedName(o) {
  var name = "";
  while (o) {
    name = __corvex__uniqueNameInLeaf(o) + "." + name;
    o = __corvex__isShadowRoot(o) ? o.host : __corvex__nodeReader.parentNode(o);
  }
  return name.substring(0, name.length - 1);
}
