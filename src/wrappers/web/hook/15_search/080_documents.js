// Gives: the order of documents in which a search looks; __corvex__findObject, the entry for a name.
// Needs: runtime/state, runtime/framewalk, runtime/contexts, runtime/frameaccess, matching, search/properties,
//   search/heuristic.

// Calls search with the document of w, and those of its frames that enters lets in, until it finds an element. That leaves
// the current context on the window that holds it: the next search starts there.
function __corvex__searchWindow(w, search, enters) {
  var before = __corvex__windowState.ctxwin;
  function look(current) {
    __corvex__windowState.ctxwin = current;
    try {
      return search(current.document);
    } catch (e) {
      // Not found in this document.
      return undefined;
    }
  }
  var found = look(w);
  try {
    found = found || __corvex__firstInFrames(w.document, look, enters);
  } catch (e) {
    // A document whose frames cannot be read.
  }
  if (!found) {
    __corvex__windowState.ctxwin = before;
  }
  return found;
}

function __corvex__searchContexts(searchIn) {
  var windows = __corvex__contextList();
  for (var i = 0; i < windows.length; ++i) {
    var found = searchIn(windows[i]);
    if (found) {
      return found;
    }
  }
  return undefined;
}

function __corvex__findObjectByProps2(nm, w, vain) {
  return __corvex__searchWindow(w, function (doc) {
    return __corvex__findObjectByProps(doc, nm, vain);
  }, __corvex__isFrameAccessible);
}

function __corvex__findObjectByProps3(nm, vain) {
  return __corvex__searchContexts(function (w) {
    return __corvex__findObjectByProps2(nm, w, vain);
  });
}

function __corvex__findObjectByProps4(nm) {
  // The document of the current context comes a second time among all the others.
  var vain = [];
  try {
    var found = __corvex__findObjectByProps(__corvex__windowState.ctxwin.document, nm, vain);
    if (found) {
      return found;
    }
  } catch (e) {
    // Not found in the current context.
  }
  return __corvex__findObjectByProps3(nm, vain);
}

function __corvex__findObject(nm) {
  window.top.__corvex.sentUnmatchedProperties = [];
  if (nm.charAt(0) === "{" && nm.charAt(nm.length - 1) === "}") {
    return __corvex__findObjectByProps4(nm);
  }
  return __corvex__findObjectByHeuristic4(nm);
}
