// Gives: the elements that a name fits best though not quite, and the frames into which no search can look.
// Needs: runtime/framewalk, runtime/frameaccess, names/hierarchy, properties/values, simplifiedtext, visibility,
//   matching, search/name.

var __corvex__rivalLimits = { rivals: 3, text: 60, path: 120, compared: 2000, frames: 5, address: 120 };

function __corvex__rivalText(value, length) {
  var text = String(value);
  return text.length > length ? text.substring(0, length) + "..." : text;
}

function __corvex__actualValue(element, property) {
  try {
    if (property === "visible") {
      return String(__corvex__isVisible(element));
    }
    return property === "simplifiedInnerText"
      ? window.top.__corvex.getSimplifiedInnerText(element) : __corvex__propertyValue(element, property);
  } catch (e) {
    return "";
  }
}

function __corvex__isOtherCase(wanted, actual) {
  return typeof actual === "string" && actual.length <= __corvex__rivalLimits.compared && actual !== wanted &&
    actual.toLowerCase() === wanted.toLowerCase();
}

// How many characters two texts have in common at their beginnings and ends.
function __corvex__commonLength(a, b) {
  var most = Math.min(a.length, b.length);
  var start = 0;
  var end = 0;
  while (start < most && a.charAt(start) === b.charAt(start)) {
    ++start;
  }
  while (end < most - start && a.charAt(a.length - 1 - end) === b.charAt(b.length - 1 - end)) {
    ++end;
  }
  return start + end;
}

// The text that is wanted, or of a wildcard its letters.
function __corvex__wantedText(value) {
  return value.modifiers === PropertyValue_Wildcard
    ? value.value.source.replace(/\\(.)|\.\*?|[\^$]/g, "$1") : __corvex__exactText(value);
}

// How near a value that does not match is to the one that is wanted, below 1; any value is nearer than none.
function __corvex__nearness(element, matcher) {
  var wanted = matcher.propValue && __corvex__wantedText(matcher.propValue);
  if (!wanted || wanted.length > __corvex__rivalLimits.compared) {
    return 0;
  }
  var actual = __corvex__actualValue(element, matcher.propName);
  if (typeof actual !== "string" || !actual || actual.length > __corvex__rivalLimits.compared) {
    return 0;
  }
  if (__corvex__isOtherCase(wanted, actual)) {
    return 0.9;
  }
  var shorter = actual.length < wanted.length ? actual : wanted;
  var longer = (shorter === actual ? wanted : actual).toLowerCase();
  shorter = shorter.toLowerCase();
  var common = longer.indexOf(shorter) === -1 ? __corvex__commonLength(shorter, longer) : shorter.length;
  return 0.01 + 0.5 * common / longer.length;
}

// Adds an element to the best so far, which are few: rivals that are equally near stay in the order of the page.
// accepted: which of the matchers accept it.
function __corvex__addRival(rivals, element, matchers, accepted) {
  var score = 0;
  for (var k = 0; k < matchers.length; ++k) {
    score += accepted[k] ? 1 : 0;
  }
  var last = rivals[__corvex__rivalLimits.rivals - 1];
  if (last && score + 1 <= last.score) {
    return;
  }
  for (k = 0; k < matchers.length; ++k) {
    score += accepted[k] ? 0 : __corvex__nearness(element, matchers[k]) / matchers.length;
  }
  if (score === 0 || (last && score <= last.score)) {
    return;
  }
  var place = 0;
  while (place < rivals.length && rivals[place].score >= score) {
    ++place;
  }
  rivals.splice(place, 0, { score: score, element: element, accepted: accepted });
  rivals.length = Math.min(rivals.length, __corvex__rivalLimits.rivals);
}

// Records of path, and of differs: the property, the actual value, and whether that is just in other capitals.
function __corvex__rivalRecords(rivals, matchers) {
  var records = [];
  for (var i = 0; i < rivals.length; ++i) {
    var differs = [];
    for (var k = 0; k < matchers.length; ++k) {
      if (!rivals[i].accepted[k]) {
        var actual = __corvex__actualValue(rivals[i].element, matchers[k].propName);
        differs.push({
          property: matchers[k].propName,
          actual: __corvex__rivalText(actual, __corvex__rivalLimits.text),
          isOtherCase: __corvex__isOtherCase(__corvex__exactText(matchers[k].propValue), actual)
        });
      }
    }
    if (differs.length) {
      var path = __corvex__rivalText(__corvex__qualifiedName(rivals[i].element), __corvex__rivalLimits.path);
      records.push({ path: path, differs: differs });
    }
  }
  return records;
}

// The addresses of the frames of a document, added to others, that show a page of another origin.
function __corvex__addClosedFrames(doc, addresses) {
  var frames = window.top.__corvex.getAllFrames(doc);
  for (var i = 0; i < frames.length && addresses.length < __corvex__rivalLimits.frames; ++i) {
    if (frames[i].contentWindow && __corvex__frameAccessErrors(frames[i])) {
      addresses.push(__corvex__rivalText(frames[i].src, __corvex__rivalLimits.address));
    }
  }
}
