// Gives: window.top.__corvex.getAllFrames, and the walks through windows and their frames.
// Needs: runtime/nodes, runtime/contexts.

window.top.__corvex.getAllFrames = function (doc) {
  var found = __corvex__askDocument(doc, "querySelectorAll", "iframe,frame");
  var frames = [];
  for (var i = 0; i < found.length; ++i) {
    frames.push(found[i]);
  }
  return frames;
};

// Calls visit with the window of each frame below a document, in document order and a frame before those in it, until it
// answers something truthy, which is the answer here. enters, if given, is asked of a frame's element before. A frame that
// cannot be read, or where the visit fails, is passed over with what is in it.
function __corvex__firstInFrames(doc, visit, enters) {
  var frames = window.top.__corvex.getAllFrames(doc);
  for (var i = 0; i < frames.length; ++i) {
    try {
      if (!enters || enters(frames[i])) {
        var w = frames[i].contentWindow;
        var answer = visit(w) || __corvex__firstInFrames(w.document, visit, enters);
        if (answer) {
          return answer;
        }
      }
    } catch (e) {
      // A frame of another origin.
    }
  }
  return undefined;
}

// The windows of all contexts, each with those of its frames after it.
function __corvex__everyWindow(enters) {
  var windows = [];
  function add(w) {
    windows.push(w);
  }
  var contexts = __corvex__contextList();
  for (var i = 0; i < contexts.length; ++i) {
    add(contexts[i]);
    try {
      __corvex__firstInFrames(contexts[i].document, add, enters);
    } catch (e) {
      // A window that went to another origin.
    }
  }
  return windows;
}

function __corvex__eachDocument(visit) {
  var windows = __corvex__everyWindow();
  for (var i = 0; i < windows.length; ++i) {
    try {
      visit(windows[i].document);
    } catch (e) {
      // A window of another origin.
    }
  }
}
