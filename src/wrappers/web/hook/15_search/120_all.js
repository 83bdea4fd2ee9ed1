// Gives: __corvex.findAllObjects: every element that a name fits, where a search for one would look.
// Needs: runtime/state, runtime/framewalk, runtime/contexts, runtime/children, runtime/frameaccess, matching,
//   search/kept, search/name, search/candidates, search/hits, search/properties, search/hittest.

// Adds the hits of nm in a document, or below an element, to those of other places. A name with an occurrence means the
// one that a search finds.
function __corvex__addHits(container, nm, hits) {
  var map = __corvex__propertyMap(nm);
  if (__corvex__occurrenceOf(map) !== "") {
    var found = hits.length ? undefined : __corvex__findObjectByProps(container, nm);
    if (found) {
      hits[0] = found;
    }
    return;
  }
  // A link may be a hit by itself, and once more by each of its images.
  var repeats = __corvex__mapEntry(map, "tagName") && __corvex__isImageLink(map);
  var kept = repeats ? undefined : __corvex__keptHits(container, nm);
  if (kept) {
    for (var i = 0; i < kept.length; ++i) {
      hits[hits.length] = kept[i];
    }
    return;
  }
  __corvex__searchByProps(container, map, nm, function (hit) {
    if (!repeats || !__corvex__listHolds(hits, hit)) {
      hits[hits.length] = hit;
    }
    return false;
  });
}

// The windows in the order of a search that begins with one of them.
function __corvex__windowsFrom(first) {
  var windows = [first];
  var all = __corvex__everyWindow(__corvex__isFrameAccessible);
  for (var i = 0; i < all.length; ++i) {
    if (all[i] !== first) {
      windows[windows.length] = all[i];
    }
  }
  return windows;
}

function __corvex__contextInName(nm) {
  try {
    return __corvex__exactText(__corvex__mapEntry(__corvex__propertyMap(nm), "context"));
  } catch (e) {
    return "";
  }
}

function __corvex__hitsInPage(nm) {
  var hits = [];
  var searched = [];
  var before = __corvex__windowState.ctxwin;
  var context = __corvex__contextInName(nm);
  // A name with a context leads into the same document from everywhere.
  var windows = context && __corvex__hasContext(context) ? [before] : __corvex__kept(__corvex__windowsFrom, before);
  for (var i = 0; i < windows.length; ++i) {
    __corvex__windowState.ctxwin = windows[i];
    try {
      var doc = __corvex__effectiveContainer(windows[i].document, __corvex__propertyMap(nm), nm);
      if (!__corvex__listHolds(searched, doc)) {
        searched[searched.length] = doc;
        __corvex__addHits(doc, nm, hits);
      }
    } catch (e) { /* none in this document */ }
  }
  __corvex__windowState.ctxwin = before;
  return hits;
}

// Records of all hits of nm: below container, or in the whole page without one.
window.top.__corvex.findAllObjects = function (nm, container) {
  var hits = [];
  if (!container) {
    window.top.__corvex.sentUnmatchedProperties = [];
    hits = __corvex__hitsInPage(nm);
  } else if (__corvex__propertyMap(nm)) {
    __corvex__addHits(container, nm, hits);
  }
  if (hits.length) {
    __corvex__removeUnmatchedProperties(nm);
  }
  var records = [];
  for (var i = 0; i < hits.length; ++i) {
    records[i] = __corvex__childRecord(hits[i], "");
  }
  return records;
};
