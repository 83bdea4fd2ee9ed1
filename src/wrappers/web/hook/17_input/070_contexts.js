// Gives: the selection of the current context, by context name and by frame path.
// Needs: runtime/state, runtime/framewalk, runtime/contexts, framelookup.

function __corvex__setContext(ctx) {
  // Kept also on failure: a window that takes this name later becomes the current one.
  __corvex__windowState.ctxwin_str = ctx;
  var w = __corvex__findContext2(ctx);
  if (!w) {
    return false;
  }
  __corvex__windowState.ctxwin = w;
  __corvex__windowState.explicitContext = w;
  return true;
}

function __corvex__matchFrameByName(frameselements, frame) {
  for (var i = 0; i < frameselements.length; ++i) {
    if (frameselements[i].name === frame) {
      return frameselements[i];
    }
  }
  return undefined;
}

// Ids outrank names, and names outrank numbers as in "FRAME2".
function __corvex__findFrame(ctxdoc, frame) {
  var found = __corvex__findFrameByIdOrName(ctxdoc, frame);
  if (found) {
    return found;
  }
  var generated = /FRAME(\d+)/.exec(frame);
  return generated ? window.top.__corvex.getAllFrames(ctxdoc)[generated[1] - 1] : undefined;
}

function __corvex__findFrameDocument(ctxdoc, frame) {
  try {
    var found = __corvex__findFrame(ctxdoc, frame);
    return found ? found.contentWindow.document : undefined;
  } catch (e) {
    return undefined;
  }
}

// The document at the end of a frame path from the script's own document, or undefined.
function __corvex__documentOfFramePath(names) {
  var doc = document;
  for (var i = 0; doc && i < names.length; ++i) {
    doc = __corvex__findFrameDocument(doc, names[i]);
  }
  return doc || undefined;
}

function __corvex__hasFrameContext(frameId) {
  return __corvex__documentOfFramePath(frameId.split(".")) !== undefined;
}

function __corvex__setFrameContext(frameId) {
  var names = frameId.split(".");
  var doc = __corvex__documentOfFramePath(names.slice(0, -1));
  var frame = doc && __corvex__findFrame(doc, names[names.length - 1]);
  if (!frame) {
    return false;
  }
  __corvex__windowState.ctxwin = frame.contentWindow;
  return true;
}
