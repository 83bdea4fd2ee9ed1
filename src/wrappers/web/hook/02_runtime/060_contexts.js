// Gives: names of windows and frames (contexts), and the way back from a name to its window.
// Needs: runtime/state, runtime/nodes, runtime/framewalk.

// 1-based; 0 where frm is no frame of w.
function __corvex__frameInWindow(frm, w) {
  var frames = window.top.__corvex.getAllFrames(w.document);
  for (var i = 0; i < frames.length; ++i) {
    if (frames[i] === frm) {
      return i + 1;
    }
  }
  return 0;
}

// The last path element of a location, without query, fragment and parameters.
function __corvex__pageOfLocation(location) {
  var s = location;
  if (s.indexOf("data:") === 0) {
    s = "/top";
  }
  if (s !== "" && s.charAt(s.length - 1) === "/") {
    s += "index.html";
  }
  var query = s.indexOf("?");
  s = s.substring(s.lastIndexOf("/", query === -1 ? s.length - 1 : query) + 1);
  return s.split("?")[0].split("#")[0].split(";")[0];
}

// The empty text on any failure. It is not escaped here: look-ups compare against the unescaped text.
function __corvex__contextOf(w, noUnify) {
  try {
    if (!w || w.closed) {
      return "";
    }
    var framePart = "";
    try {
      while (w.parent && w.parent !== w) {
        framePart = ".FRAME" + __corvex__frameInWindow(w.frameElement, w.parent) + framePart;
        w = w.parent;
      }
    } catch (e) {
      // A parent of another origin ends the walk.
    }
    var page = __corvex__pageOfLocation(String(w.location));
    if (noUnify !== true) {
      var count = __corvex__findContext(page, w);
      if (count > 1) {
        page += "<" + count + ">";
      }
    }
    return page + framePart;
  } catch (e) {
    return "";
  }
}

function __corvex__contextOfForUrl(w) {
  return escape(__corvex__contextOf(w));
}

// How many top-level windows have this name, up to w where w is among them. A closed window has none.
function __corvex__findContext(ctx, w) {
  var count = 0;
  var windows = [window].concat(__corvex__windowState.windows);
  for (var i = 0; i < windows.length; ++i) {
    if (windows[i] && !windows[i].closed && __corvex__contextOf(windows[i], true) === ctx) {
      ++count;
      if (windows[i] === w) {
        return count;
      }
    }
  }
  return count;
}

function __corvex__isUsableContext(w) {
  try {
    return !!w && !w.closed && __corvex__contextOf(w) !== "";
  } catch (e) {
    return false;
  }
}

function __corvex__contextList() {
  var list = [window];
  for (var i = 0; i < __corvex__windowState.windows.length; ++i) {
    if (__corvex__isUsableContext(__corvex__windowState.windows[i])) {
      list.push(__corvex__windowState.windows[i]);
    }
  }
  return list;
}

function __corvex__findDocument(w, doc) {
  return __corvex__firstInFrames(w.document, function (frameWindow) {
    return frameWindow.document === doc && frameWindow;
  });
}

function __corvex__currentContext(o) {
  var doc = __corvex__getDocumentForNode(o);
  if (!doc) {
    return window;
  }
  var contexts = __corvex__contextList();
  for (var i = 0; i < contexts.length; ++i) {
    try {
      if (contexts[i].document === doc) {
        return contexts[i];
      }
      var frameWindow = __corvex__findDocument(contexts[i], doc);
      if (frameWindow) {
        return frameWindow;
      }
    } catch (e) {
      // A window that went to another origin.
    }
  }
  return window;
}

function __corvex__findContextWindow(w, ctx) {
  try {
    return __corvex__firstInFrames(w.document, function (frameWindow) {
      return __corvex__contextOf(frameWindow) === ctx && frameWindow;
    });
  } catch (e) {
    // What cannot be read holds no context.
    return undefined;
  }
}

function __corvex__findContext2(ctx) {
  if (__corvex__contextOf(window) === ctx) {
    return window;
  }
  var i;
  for (i = 0; i < __corvex__windowState.windows.length; ++i) {
    var w = __corvex__windowState.windows[i];
    if (w && !w.closed && __corvex__contextOf(w) === ctx) {
      return w;
    }
  }
  var found = __corvex__findContextWindow(window, ctx);
  var contexts = __corvex__contextList();
  for (i = 0; !found && i < contexts.length; ++i) {
    if (typeof contexts[i] !== "function") {
      found = __corvex__findContextWindow(contexts[i], ctx);
    }
  }
  return found;
}

function __corvex__hasContext(ctx) {
  try {
    return !!__corvex__findContext2(ctx);
  } catch (e) {
    return false;
  }
}

// context: as in a hierarchical name, where "|" stands for ".". Undefined where unknown names are to fail.
function __corvex__documentOfContext(context) {
  var ctx = context.replace(/\|/g, ".");
  var w = __corvex__windowState.ctxwin;
  if (ctx !== "") {
    if (__corvex__hasContext(ctx)) {
      w = __corvex__findContext2(ctx);
    } else if (window.top.__corvex__throwErrorForUnknownContextName) {
      return undefined;
    }
  }
  try {
    return w.document;
  } catch (e) {
    // The window went to another origin.
    return undefined;
  }
}

function __corvex__isPageLoaded() {
  return document.readyState === "complete";
}
