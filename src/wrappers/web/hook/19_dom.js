// Gives: __corvexDOMAPI, traversal that honours the node filter.
// Needs: runtime/nodes.
/* global __corvex__filter__non__element__nodes */

var __corvexDOMAPI = (function () {
  function isElementNode(e) {
    return __corvex__nodeReader.nodeType(e) === 1;
  }

  function filterNonElementNodes() {
    try {
      // Asked first: an exception at each step of a walk would be dear where the flag is not set.
      return typeof __corvex__filter__non__element__nodes !== "undefined" && !!__corvex__filter__non__element__nodes;
    } catch (e) {
      return false;
    }
  }

  // The node that the first property names and, with the filter on, after it the first element along the second.
  function traversal(property, direction) {
    return function (e) {
      if (!filterNonElementNodes()) {
        return __corvex__nodeReader[property](e);
      }
      if (!e) {
        return undefined;
      }
      var node = __corvex__nodeReader[property](e);
      while (node && !isElementNode(node)) {
        node = __corvex__nodeReader[direction](node);
      }
      return node;
    };
  }

  var api = {
    firstChild: traversal("firstChild", "nextSibling"),
    lastChild: traversal("lastChild", "previousSibling"),
    nextSibling: traversal("nextSibling", "nextSibling"),
    previousSibling: traversal("previousSibling", "previousSibling"),
    isElementNode: isElementNode,
    isNonElementNode: function (e) {
      return !isElementNode(e);
    },
    filterNonElementNodes: filterNonElementNodes
  };

  api.numChildren = function (e) {
    if (!filterNonElementNodes()) {
      return __corvex__nodeReader.childNodes(e).length;
    }
    if (!e) {
      return undefined;
    }
    var count = 0;
    for (var child = api.firstChild(e); child; child = api.nextSibling(child)) {
      ++count;
    }
    return count;
  };
  return api;
})();
