// Gives: the search for plain words: link text, id, name, label or button text, DIV text, in this order.
// Needs: runtime/state, runtime/nodes, runtime/text, search/documents.

function __corvex__firstWithText(elements, text) {
  for (var i = 0; i < elements.length; ++i) {
    if (__corvex__clean(elements[i].innerText) === text) {
      return elements[i];
    }
  }
  return undefined;
}

// A label that fits ends the scan even if the element that it is for does not exist.
function __corvex__labelledOrButton(doc, text) {
  var all = __corvex__askDocument(doc, "getElementsByTagName", "*");
  for (var i = 0; i < all.length; ++i) {
    var element = all[i];
    if (element.tagName === "LABEL" && __corvex__clean(element.innerText) === text) {
      return __corvex__askDocument(doc, "getElementById", element.htmlFor);
    }
    if (element.type === "button" &&
      (__corvex__clean(element.innerText) === text || element.value === text)) {
      return element;
    }
  }
  return undefined;
}

function __corvex__findObjectByHeuristic(nm) {
  var doc = __corvex__windowState.ctxwin.document;
  return __corvex__firstWithText(__corvex__nodeReader.links(doc), nm) ||
    __corvex__askDocument(doc, "getElementById", nm) ||
    __corvex__askDocument(doc, "getElementsByName", nm)[0] ||
    __corvex__labelledOrButton(doc, nm) ||
    __corvex__firstWithText(__corvex__askDocument(doc, "getElementsByTagName", "DIV"), nm);
}

function __corvex__findObjectByHeuristic2(nm, w) {
  return __corvex__searchWindow(w, function () {
    return __corvex__findObjectByHeuristic(nm);
  });
}

function __corvex__findObjectByHeuristic3(nm) {
  return __corvex__searchContexts(function (w) {
    return __corvex__findObjectByHeuristic2(nm, w);
  });
}

function __corvex__findObjectByHeuristic4(nm) {
  try {
    var found = __corvex__findObjectByHeuristic(nm);
    if (found) {
      return found;
    }
  } catch (e) {
    // Not found in the current context.
  }
  return __corvex__findObjectByHeuristic3(nm);
}
