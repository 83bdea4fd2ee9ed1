// Gives: __corvex__findObjectByProps, the search below one document or element, and how the hits count.
// Needs: runtime/nodes, names/entry, matching, search/name, search/elementtest, search/candidates, search/likely,
//   search/hits, search/hittest.

function __corvex__isImageLink(map) {
  return __corvex__propMatches(map.tagName, "A") &&
    (__corvex__mapEntry(map, "img_id") || __corvex__mapEntry(map, "img_name") ||
    __corvex__mapEntry(map, "img_alt") || __corvex__mapEntry(map, "img_src"));
}

function __corvex__imageMatches(img, map) {
  var id = __corvex__mapEntry(map, "img_id");
  var name = __corvex__mapEntry(map, "img_name");
  var src = __corvex__mapEntry(map, "img_src");
  var alt = __corvex__mapEntry(map, "img_alt");
  return (!id || __corvex__propMatches(id, img.id)) &&
    (!name || __corvex__propMatches(name, img.name)) &&
    (!src || __corvex__propMatches(src, img.src)) &&
    (!alt || __corvex__matchesPlainOrCleaned(alt, img.alt));
}

function __corvex__searchImageLinks(links, map, accept) {
  for (var i = 0; i < links.length; ++i) {
    var img = __corvex__elementsByTag(links[i], "IMG")[0];
    if (img && __corvex__imageMatches(img, map) && accept(links[i])) {
      return links[i];
    }
  }
  return undefined;
}

// Calls accept with each hit in the order of the search until it answers true, and returns that hit. vain, if given:
// containers in which the same search found nothing; they are passed over, and this one may join them.
function __corvex__searchByProps(container, map, nm, accept, vain) {
  if (!__corvex__mapEntry(map, "tagName")) {
    throw new Error("The name " + nm + " has no tagName; add one, the search needs it.");
  }
  container = __corvex__effectiveContainer(container, map, nm);
  if (!container || (vain && __corvex__listHolds(vain, container))) {
    return undefined;
  }
  var isImageLink = __corvex__isImageLink(map);
  var candidates;
  if (isImageLink) {
    var link = __corvex__searchImageLinks(__corvex__elementsByTag(container, "A"), map, accept);
    if (link) {
      return link;
    }
    map.name = map.img_name;
    map.id = map.img_id;
    map.tagName.value = "IMG";
    candidates = __corvex__elementsByTag(container, "IMG");
  } else {
    candidates = __corvex__candidates(container, map);
  }
  candidates = __corvex__withShadowCandidates(candidates, container, map.tagName.value);

  candidates = __corvex__likelyCandidates(candidates, container, map, nm);
  var passes = __corvex__elementTest(__corvex__matchersFor(map, nm));
  var count = candidates.length;
  for (var i = 0; i < count; ++i) {
    if (passes(candidates[i])) {
      var hit = isImageLink ? __corvex__enclosingLink(candidates[i]) || candidates[i] : candidates[i];
      if (accept(hit)) {
        __corvex__removeUnmatchedProperties(nm);
        return hit;
      }
    }
  }
  if (count === 0) {
    __corvex__addUnmatchedProperty(nm, "tagName");
  }
  if (vain && !__corvex__extensionsMatch()) {
    vain.push(container);
  }
  return undefined;
}

function __corvex__findObjectByProps(container, nm, vain) {
  var map = __corvex__propertyMap(nm);
  if (!map) {
    return undefined;
  }
  var skip = __corvex__matchesToSkip(map);
  var hits = __corvex__keptHits(container, nm);
  if (hits) {
    return hits[skip > 0 ? Math.ceil(skip) : 0];
  }
  return __corvex__searchByProps(container, map, nm, function () {
    return !(skip-- > 0);
  }, vain);
}

// place: the 1-based place of element among the hits of nm in one document, if it is from or after it, else 0. count:
// the number of hits there. Both are 0 if nm counts itself, or if the search fails there.
function __corvex__hitsInDocument(doc, nm, element, from) {
  try {
    var map = __corvex__propertyMap(nm);
    if (!map || map.occurrence || map.occurance) {
      return { place: 0, count: 0 };
    }
    var count = 0;
    var hits = __corvex__keptHits(doc, nm);
    if (hits) {
      for (count = from; count <= hits.length && hits[count - 1] !== element;) {
        ++count;
      }
      return count <= hits.length ? { place: count, count: count } : { place: 0, count: hits.length };
    }
    var found = __corvex__searchByProps(doc, map, nm, function (hit) {
      ++count;
      return hit === element && count >= from;
    });
    return { place: found ? count : 0, count: count };
  } catch (e) {
    return { place: 0, count: 0 };
  }
}
