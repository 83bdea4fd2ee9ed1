// Gives: what stands in the way of a frame path; empty where nothing does, and the frame is then selected. A frame of
// another origin would be selected without a word, too. Needs: the hook script.
(function (path) {
  var before = window.__corvex__ctxwin;
  var names = path.split(".");
  for (var i = 1; i <= names.length; ++i) {
    var step = names.slice(0, i).join(".");
    if (!__corvex__hasFrameContext(step)) {
      var isThere = __corvex__setFrameContext(step);
      window.__corvex__ctxwin = before;
      return (isThere ? "foreign " : "missing ") + step;
    }
  }
  __corvex__setFrameContext(path);
  return "";
})('%1');
