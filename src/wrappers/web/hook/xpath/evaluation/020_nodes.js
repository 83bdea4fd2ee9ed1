// Gives: __corvex__xpath.read, parentOf, rootOf, textOfNode, ordered: what nodes hold, also where a page hides it.
// Needs: runtime/natives, runtime/nodes, xpath/parsing/lexer.

// As __corvex__nodeReader, with further properties.
__corvex__xpath.read = (function () {
  function reader(type, name) {
    var getter;
    try {
      getter = Object.getOwnPropertyDescriptor(type.prototype, name).get;
    } catch (e) { /* an engine without getters on prototypes */ }
    var get = getter && __corvex__natives.unbound(getter);
    return function (node) {
      return get ? get(node) : node[name];
    };
  }

  var read = {
    attributes: reader(window.Element, "attributes"),
    localName: reader(window.Element, "localName"),
    textContent: reader(window.Node, "textContent")
  };
  for (var name in __corvex__nodeReader) {
    if (__corvex__natives.has(__corvex__nodeReader, name)) {
      read[name] = __corvex__nodeReader[name];
    }
  }
  return read;
})();

__corvex__xpath.parentOf = function (node) {
  return node.nodeType === 2 ? node.ownerElement : __corvex__xpath.read.parentNode(node);
};

__corvex__xpath.rootOf = function (node) {
  var parent = __corvex__xpath.parentOf(node);
  while (parent) {
    node = parent;
    parent = __corvex__xpath.parentOf(node);
  }
  return node;
};

// As a.compareDocumentPosition( b ); undefined where the browser has none.
__corvex__xpath.comparePlaces = window.Node && window.Node.prototype.compareDocumentPosition &&
  __corvex__natives.unbound(window.Node.prototype.compareDocumentPosition);

__corvex__xpath.isBelow = function (node, ancestor) {
  var compare = __corvex__xpath.comparePlaces;
  return !!compare && node.nodeType !== 2 && (compare(ancestor, node) & 16) !== 0;
};

__corvex__xpath.textOfNode = function (node) {
  var read = __corvex__xpath.read;
  var type = read.nodeType(node);
  if (type !== 1 && type !== 9 && type !== 11) {
    // A document type has no value.
    return (type === 2 ? node.value : node.nodeValue) || "";
  }
  var text = type === 9 ? undefined : read.textContent(node);
  if (typeof text === "string") {
    return text;
  }
  text = "";
  for (var child = read.firstChild(node); child; child = read.nextSibling(child)) {
    var childType = read.nodeType(child);
    if (childType === 1 || childType === 3 || childType === 4) {
      text += __corvex__xpath.textOfNode(child);
    }
  }
  return text;
};

// The nodes in document order, each once.
__corvex__xpath.ordered = (function () {
  var NativeSet = typeof Set === "function" && Set.prototype.has ? Set : null;
  var compareNodes = __corvex__xpath.comparePlaces;

  function precedes(a, b) {
    return compareNodes(a, b) & 4;
  }

  function unique(nodes) {
    var seen = NativeSet ? new NativeSet() : null;
    var kept = [];
    for (var i = 0; i < nodes.length; ++i) {
      if (seen ? !seen.has(nodes[i]) : !contains(kept, nodes[i])) {
        kept.push(nodes[i]);
        if (seen) {
          seen.add(nodes[i]);
        }
      }
    }
    return kept;
  }

  function contains(list, node) {
    for (var i = 0; i < list.length; ++i) {
      if (list[i] === node) {
        return true;
      }
    }
    return false;
  }

  return function (nodes) {
    var inOrder = true;
    for (var i = 1; compareNodes && inOrder && i < nodes.length; ++i) {
      inOrder = precedes(nodes[i - 1], nodes[i]);
    }
    if (inOrder && compareNodes) {
      return nodes;
    }
    nodes = unique(nodes);
    return compareNodes ? nodes.sort(function (a, b) { return precedes(a, b) ? -1 : 1; }) : nodes;
  };
})();
