// Gives: __corvex__nodeReader and more to read of nodes what the fields of a form or names in a document hide.
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
    "previousSibling", "childNodes"]);
  addReaders("Element", ["tagName", "id", "className", "shadowRoot"]);
  addReaders("HTMLElement", ["offsetParent", "onclick", "onmousedown"]);
  addReaders("Document", ["links"]);
  return readers;
})();

// As doc[method](argument), also where an element of that name hides the document's own function.
function __corvex__askDocument(doc, method, argument) {
  return typeof doc[method] === "function" ? doc[method](argument) :
    __corvex__natives.apply(Document.prototype[method], doc, [argument]);
}

// A form may hide the function behind a field; what is no element has none.
function __corvex__attributeOf(o, name) {
  return typeof o.getAttribute === "function" ? o.getAttribute(name) :
    __corvex__natives.apply(Element.prototype.getAttribute, o, [name]);
}

// By its shape: instanceof fails for a shadow root of another frame.
function __corvex__isShadowRoot(node) {
  return !!node && __corvex__nodeReader.nodeType(node) === 11 && !!node.host;
}

function __corvex__isDocumentNode(elem) {
  // Old Internet Explorer has no such constant.
  var nodeType = __corvex__nodeReader.nodeType(elem);
  return nodeType === elem.DOCUMENT_NODE || nodeType === 9;
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
