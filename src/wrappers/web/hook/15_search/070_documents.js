// Gives: the order of documents in which a search by properties looks; __corvex__findObject, the entry for a name.
// Needs: 30_properties.js; contexts and frames of the runtime when called.

// An element that is found leaves the current context on the window that holds it: the next search starts there.
function __corvex__findObjectByProps2(nm, w, vain) {
  var before = __corvex__windowState.ctxwin;
  var found;
  __corvex__windowState.ctxwin = w;
  try {
    found = __corvex__findObjectByProps(w.document, nm, vain);
  } catch (e) { /* not found in this document */ }
  if (found) {
    return found;
  }
  try {
    var frames = window.top.__corvex.getAllFrames(w.document);
    for (var i = 0; i < frames.length; ++i) {
      if (__corvex__isFrameAccessible(frames[i])) {
        found = __corvex__findObjectByProps2(nm, frames[i].contentWindow, vain);
        if (found) {
          return found;
        }
      }
    }
  } catch (e) { /* a document whose frames cannot be read */ }
  __corvex__windowState.ctxwin = before;
  return undefined;
}

function __corvex__findObjectByProps3(nm, vain) {
  var windows = __corvex__contextList();
  for (var i = 0; i < windows.length; ++i) {
    try {
      var found = __corvex__findObjectByProps2(nm, windows[i], vain);
      if (found) {
        return found;
      }
    } catch (e) { /* the next window is still tried */ }
  }
  return undefined;
}

function __corvex__findObjectByProps4(nm) {
  // The document of the current context comes a second time among all the others.
  var vain = [];
  try {
    var found = __corvex__findObjectByProps(__corvex__windowState.ctxwin.document, nm, vain);
    if (found) {
      return found;
    }
  } catch (e) { /* not found in the current context */ }
  return __corvex__findObjectByProps3(nm, vain);
}

function __corvex__findObject(nm) {
  window.top.__corvex.sentUnmatchedProperties = [];
  if (nm.charAt(0) === "{" && nm.charAt(nm.length - 1) === "}") {
    return __corvex__findObjectByProps4(nm);
  }
  return __corvex__findObjectByHeuristic4(nm);
}
