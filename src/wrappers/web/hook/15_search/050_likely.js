// Gives: __corvex__likelyCandidates: while the page stays, those whose texts tell that a name may fit them.
// Needs: runtime/nodes, runtime/text, names/properties, simplifiedtext, matching, search/kept, search/name,
//   search/elementtest.

// Properties that names tell elements apart by, the one that does so best first.
var __corvex__tellingProperties = ["id", "simplifiedInnerText", "name", "value"];

// The texts one of which an exact value has to be, or be when it is cleaned; undefined where that does not say it all.
// A matcher of an extension may tell them by a function exactTexts of its own.
function __corvex__textsOfProperty(prop, matcher) {
  if (matcher) {
    return typeof matcher.exactTexts === "function" ? matcher.exactTexts : undefined;
  }
  if (prop === "id") {
    return function (o) {
      return [__corvex__idHelper(__corvex__nodeReader.id(o))];
    };
  }
  if (prop === "simplifiedInnerText") {
    return function (o) {
      return [__corvex__kept(window.top.__corvex.getSimplifiedInnerText, o)];
    };
  }
  return function (o) {
    return [o[prop], __corvex__attributeOf(o, prop)];
  };
}

function __corvex__addPlace(placesOf, text, place) {
  var places = placesOf[text] || (placesOf[text] = []);
  if (places[places.length - 1] !== place) {
    places.push(place);
  }
}

// places: the candidates with each text, by their numbers. others: those with values that are no texts.
function __corvex__indexOfTexts(candidates, textsOf) {
  var index = { places: Object.create(null), others: [] };
  for (var i = 0; i < candidates.length; ++i) {
    var texts = textsOf(candidates[i]);
    for (var k = 0; k < texts.length; ++k) {
      if (typeof texts[k] === "string") {
        __corvex__addPlace(index.places, texts[k], i);
        __corvex__addPlace(index.places, __corvex__clean(texts[k]), i);
      } else if (texts[k] !== null && texts[k] !== undefined && index.others[index.others.length - 1] !== i) {
        index.others.push(i);
      }
    }
  }
  return index;
}

function __corvex__noIndexYet() {
  return Object.create(null);
}

function __corvex__narrowedBy(prop, candidates, container, map, nm) {
  var value = __corvex__mapEntry(map, prop);
  if (!value || value.modifiers !== PropertyValue_StrictMatch || typeof value.value !== "string") {
    return undefined;
  }
  var textsOf = __corvex__textsOfProperty(prop, __corvex__matcherOfProperty(prop, value, nm));
  if (!textsOf) {
    return undefined;
  }
  var form = __corvex__mapEntry(map, "form");
  var indexes = __corvex__kept(__corvex__noIndexYet, container);
  var key = prop + " " + map.tagName.value + " " + (form ? form.modifiers + " " + form.value : "");
  var index = indexes[key] || (indexes[key] = __corvex__indexOfTexts(candidates, textsOf));
  var places = (index.places[value.value] || []).concat(index.places[__corvex__clean(value.value)] || [], index.others);
  places.sort(function (a, b) {
    return a - b;
  });
  var likely = [];
  for (var i = 0; i < places.length; ++i) {
    if (i === 0 || places[i] !== places[i - 1]) {
      likely.push(candidates[places[i]]);
    }
  }
  return likely;
}

// All that a search below the container would accept, and perhaps others, in its order.
function __corvex__likelyCandidates(candidates, container, map, nm) {
  if (!__corvex__keptAnswers || __corvex__reportsProperties() || __corvex__extensionsMatch()) {
    return candidates;
  }
  for (var i = 0; i < __corvex__tellingProperties.length; ++i) {
    var likely = __corvex__narrowedBy(__corvex__tellingProperties[i], candidates, container, map, nm);
    if (likely) {
      return likely;
    }
  }
  return candidates;
}
