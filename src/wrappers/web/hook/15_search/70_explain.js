// Gives: why a name finds nothing: how many elements have its tag, and which of its properties none of them has.
// Needs: the search by properties, getAllFrames, __corvex__contextList.

function __corvex__eachDocument(visit) {
  function walk(w) {
    visit(w.document);
    var frames = window.top.__corvex.getAllFrames(w.document);
    for (var i = 0; i < frames.length; ++i) {
      try {
        walk(frames[i].contentWindow);
      } catch (e) {
        continue;
      }
    }
  }
  var windows = __corvex__contextList();
  for (var i = 0; i < windows.length; ++i) {
    try {
      walk(windows[i]);
    } catch (e) {
      continue;
    }
  }
}

// A record of: problem, a text, where the name itself is at fault; else tag, count (elements of that tag in all
// documents) and missing (the properties that none of these has). undefined for a name that is no list of properties.
window.top.__corvex.explainFailedSearch = function (nm) {
  var map;
  try {
    map = __corvex__propertyMap(nm);
  } catch (e) {
    return { problem: String(e.message) };
  }
  if (!map) {
    return undefined;
  }
  if (!__corvex__mapEntry(map, "tagName")) {
    return { problem: "it has no tagName; add one, the search needs it" };
  }
  var context = __corvex__exactText(__corvex__mapEntry(map, "context"));
  if (context && !__corvex__hasContext(context)) {
    return { problem: "there is no context '" + context + "'" };
  }
  var matchers = __corvex__matchersFor(map, nm);
  var seen = [];
  var count = 0;
  __corvex__eachDocument(function (doc) {
    var elements = doc.getElementsByTagName(map.tagName.value);
    count += elements.length;
    for (var i = 0; i < elements.length; ++i) {
      for (var k = 0; k < matchers.length; ++k) {
        seen[k] = seen[k] || !!matchers[k].matchObject(elements[i]);
      }
    }
  });
  var missing = [];
  for (var k = 0; k < matchers.length; ++k) {
    if (!seen[k]) {
      missing.push(matchers[k].propName);
    }
  }
  return { tag: String(map.tagName.value), count: count, missing: missing };
};
