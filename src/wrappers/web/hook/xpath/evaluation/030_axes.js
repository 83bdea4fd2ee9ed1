// Gives: __corvex__xpath.axes (name to a function of a node that lists the axis) and __corvex__xpath.nodeTests.
// Needs: xpath/evaluation/nodes, xpath/parsing/lexer.

// Reverse axes list their nodes from the context node outward, as positions count there.
__corvex__xpath.axes = (function () {
  var read = __corvex__xpath.read;
  var parentOf = __corvex__xpath.parentOf;

  function nextInTree(node, top) {
    var next = read.firstChild(node);
    while (!next && node && node !== top) {
      next = read.nextSibling(node);
      node = read.parentNode(node);
    }
    return next;
  }

  function nextBehind(node) {
    var next = null;
    while (node && !next) {
      next = read.nextSibling(node);
      node = read.parentNode(node);
    }
    return next;
  }

  function previousInTree(node) {
    var previous = read.previousSibling(node);
    if (!previous) {
      return read.parentNode(node);
    }
    while (read.lastChild(previous)) {
      previous = read.lastChild(previous);
    }
    return previous;
  }

  function chain(node, next) {
    var nodes = [];
    for (; node; node = next(node)) {
      nodes.push(node);
    }
    return nodes;
  }

  function descendants(node, nodes) {
    if (node.nodeType !== 2) {
      for (var n = read.firstChild(node); n; n = nextInTree(n, node)) {
        nodes.push(n);
      }
    }
    return nodes;
  }

  function attributes(node) {
    var list = read.nodeType(node) === 1 ? read.attributes(node) : [];
    var nodes = [];
    for (var i = 0; i < list.length; ++i) {
      if (list[i].nodeName !== "xmlns" && list[i].nodeName.indexOf("xmlns:") !== 0) {
        nodes.push(list[i]);
      }
    }
    return nodes;
  }

  function preceding(node) {
    var nodes = [];
    var ancestor = parentOf(node);
    if (node.nodeType === 2) {
      node = ancestor;
      ancestor = read.parentNode(node);
    }
    for (var n = previousInTree(node); n; n = previousInTree(n)) {
      if (n === ancestor) {
        ancestor = read.parentNode(ancestor);
      } else {
        nodes.push(n);
      }
    }
    return nodes;
  }

  return {
    "self": function (node) { return [node]; },
    "child": function (node) { return chain(node.nodeType === 2 ? null : read.firstChild(node), read.nextSibling); },
    "parent": function (node) { return parentOf(node) ? [parentOf(node)] : []; },
    "ancestor": function (node) { return chain(parentOf(node), parentOf); },
    "ancestor-or-self": function (node) { return chain(node, parentOf); },
    "descendant": function (node) { return descendants(node, []); },
    "descendant-or-self": function (node) { return descendants(node, [node]); },
    "following-sibling": function (node) {
      return node.nodeType === 2 ? [] : chain(read.nextSibling(node), read.nextSibling);
    },
    "preceding-sibling": function (node) {
      return node.nodeType === 2 ? [] : chain(read.previousSibling(node), read.previousSibling);
    },
    "following": function (node) {
      var first = node.nodeType === 2 ? nextInTree(node.ownerElement) : nextBehind(node);
      return chain(first, function (n) { return nextInTree(n); });
    },
    "preceding": preceding,
    "attribute": attributes,
    // An HTML document declares no namespaces that a page could name.
    "namespace": function () { return []; }
  };
})();

__corvex__xpath.reverseAxes = /^(?:ancestor|ancestor-or-self|preceding|preceding-sibling)$/;

// Kind of test to a function of the node, the test, whether case counts not, and the axis.
__corvex__xpath.nodeTests = (function () {
  function isNamed(node, axis) {
    return axis === "attribute" || __corvex__xpath.read.nodeType(node) === 1;
  }

  return {
    "any": function (node, test, caseInsensitive, axis) {
      return isNamed(node, axis);
    },
    "name": function (node, test, caseInsensitive, axis) {
      if (!isNamed(node, axis)) {
        return false;
      }
      var name = __corvex__xpath.read.nodeName(node);
      if (!caseInsensitive) {
        return name === test.name;
      }
      if (!test.pattern) {
        test.pattern = new RegExp("^" + test.name + "$", "i");
      }
      return name.length === test.name.length && test.pattern.test(name);
    },
    "prefix": function (node, test, caseInsensitive, axis) {
      var start = isNamed(node, axis) ?
        __corvex__xpath.read.nodeName(node).substring(0, test.name.length + 1) : "";
      return start === test.name + ":" ||
        (caseInsensitive && start.toLowerCase() === test.name.toLowerCase() + ":");
    },
    "node": function () {
      return true;
    },
    "text": function (node) {
      return node.nodeType === 3 || node.nodeType === 4;
    },
    "comment": function (node) {
      return node.nodeType === 8;
    },
    "processing-instruction": function (node, test) {
      return node.nodeType === 7 && (test.target === null || node.nodeName === test.target);
    }
  };
})();
