// Gives: __corvex__nodeReader, __corvex__askNode and more: what fields, names and pages hide of nodes, or replace.
// Needs: runtime/natives.

var __corvex__nodeReader = (function () {
  // A hidden property reads as a field, which is an object. Plain values are taken as they come, so that the
  // records which extensions pass off as nodes work, too.
  function reader(interfaceName, property) {
    var getter = null;
    try {
      getter = Object.getOwnPropertyDescriptor(window[interfaceName].prototype, property).get;
    } catch (e) {
      // An engine that keeps these properties on the nodes themselves.
    }
    var get = getter && __corvex__natives.unbound(getter);
    return function (node) {
      var value = node[property];
      if (!get || !value || (typeof value !== "object" && typeof value !== "function")) {
        return value;
      }
      try {
        return get(node);
      } catch (e) {
        return value;
      }
    };
  }

  var readers = {};
  function addReaders(interfaceName, properties) {
    for (var i = 0; i < properties.length; ++i) {
      readers[properties[i]] = reader(interfaceName, properties[i]);
    }
  }
  addReaders("Node", ["nodeType", "nodeName", "parentNode", "ownerDocument", "firstChild", "lastChild", "nextSibling",
    "previousSibling", "childNodes", "textContent"]);
  addReaders("Element", ["tagName", "id", "className", "shadowRoot"]);
  addReaders("HTMLElement", ["offsetParent", "onclick", "onmousedown"]);
  addReaders("Document", ["links"]);
  return readers;
})();

// The name of a function of the page's own, in place of the browser's, that failed when it was asked last.
var __corvex__failedReplacement = { name: "" };

// By interface and method, a function for node[method](argument). It is the browser's, whatever hides or replaces that in
// the page, unless there was none left to keep, or the node is a record that an extension passes off as one.
var __corvex__askNode = (function () {
  function askOwn(interfaceName, method, node, argument) {
    var ask = typeof node[method] === "function" ? node[method] : window[interfaceName].prototype[method];
    try {
      return __corvex__natives.apply(ask, node, [argument]);
    } catch (e) {
      if (typeof ask === "function" && !__corvex__nativeFunction(ask)) {
        __corvex__failedReplacement.name = method;
      }
      throw e;
    }
  }

  function asker(interfaceName, method) {
    var kept = __corvex__nativeFunction(window[interfaceName] && window[interfaceName].prototype[method]);
    var ask = kept && __corvex__natives.unbound(kept);
    return function (node, argument) {
      if (ask) {
        try {
          return ask(node, argument);
        } catch (e) {
          // No node of this kind, or an argument that its own function refuses, too.
        }
      }
      return askOwn(interfaceName, method, node, argument);
    };
  }

  var rows = {
    Document: ["getElementById", "getElementsByName", "getElementsByTagName", "querySelectorAll"],
    DocumentFragment: ["querySelectorAll"],
    Element: ["getAttribute", "getAttributeNames", "getBoundingClientRect", "getClientRects", "getElementsByTagName"],
    Node: ["getRootNode"]
  };
  var askers = {};
  for (var interfaceName in rows) {
    if (__corvex__natives.has(rows, interfaceName)) {
      askers[interfaceName] = {};
      for (var i = 0; i < rows[interfaceName].length; ++i) {
        askers[interfaceName][rows[interfaceName][i]] = asker(interfaceName, rows[interfaceName][i]);
      }
    }
  }
  return askers;
})();

function __corvex__askDocument(doc, method, argument) {
  return __corvex__askNode.Document[method](doc, argument);
}

// What is no element has none. Searches ask this of every candidate, and engines are quickest with the plain call.
var __corvex__attributeOf = (function () {
  var kept = __corvex__nativeFunction(window.Element && Element.prototype.getAttribute);
  return function (o, name) {
    return kept && o.getAttribute === kept ? o.getAttribute(name) : __corvex__askNode.Element.getAttribute(o, name);
  };
})();

// By its shape: instanceof fails for a shadow root of another frame.
function __corvex__isShadowRoot(node) {
  return !!node && __corvex__nodeReader.nodeType(node) === 11 && !!node.host;
}

function __corvex__isDocumentNode(elem) {
  // Old Internet Explorer has no such constant.
  var nodeType = __corvex__nodeReader.nodeType(elem);
  return nodeType === elem.DOCUMENT_NODE || nodeType === 9;
}

// A shadow root has only the selection by selectors.
function __corvex__elementsByTag(container, tagName) {
  if (__corvex__isShadowRoot(container)) {
    return __corvex__askNode.DocumentFragment.querySelectorAll(container, tagName);
  }
  var ask = __corvex__isDocumentNode(container) ? __corvex__askNode.Document : __corvex__askNode.Element;
  return ask.getElementsByTagName(container, tagName);
}

function __corvex__getDocumentForNode(node) {
  if (!node) {
    return null;
  }
  var nodeType = __corvex__nodeReader.nodeType(node);
  if (nodeType === 9) {
    return node;
  }
  return nodeType === 1 ? __corvex__nodeReader.ownerDocument(node) : null;
}

function __corvex__getDocumentForEvent(e) {
  return __corvex__getDocumentForNode(e.target) || __corvex__getDocumentForNode(e.srcElement);
}

function __corvex__findUsableParentElement(elem) {
  var node = elem;
  while (node && !__corvex__isDocumentNode(node) &&
         (!__corvex__nodeReader.tagName(node) || __corvex__nodeReader.nodeType(node) !== 1)) {
    node = __corvex__nodeReader.parentNode(node);
  }
  return node;
}
