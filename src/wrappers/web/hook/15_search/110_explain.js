// Gives: why a name finds nothing: how many elements have its tag, and which of its properties none of them has.
// Needs: runtime/nodes, runtime/framewalk, runtime/contexts, matching, search/name, search/candidates,
//   search/properties, search/rivals.

// What is wrong with a name, whatever there is in the page, as the fault of a record; undefined where nothing is.
window.top.__corvex.faultOfName = function (nm) {
  var map;
  try {
    map = __corvex__propertyMap(nm);
  } catch (e) {
    return { fault: String(e.message) };
  }
  var tagName = map && __corvex__mapEntry(map, "tagName");
  if (tagName && tagName.modifiers !== PropertyValue_StrictMatch) {
    return { fault: "its tagName is a pattern; the search needs an exact one" };
  }
  return undefined;
};

function __corvex__newSurvey(map, nm) {
  return { matchers: __corvex__matchersFor(map, nm), seen: [], errors: [], count: 0, most: 0, rivals: [],
    frames: [] };
}

// Which matchers accept an element at all, what went wrong where they did not, and the elements that come near.
function __corvex__askMatchers(element, survey) {
  var accepted = [];
  for (var k = 0; k < survey.matchers.length; ++k) {
    try {
      accepted[k] = !!survey.matchers[k].matchObject(element);
      survey.seen[k] = survey.seen[k] || accepted[k];
    } catch (e) {
      survey.errors[k] = String(e.message);
    }
  }
  __corvex__addRival(survey.rivals, element, survey.matchers, accepted);
}

// How many hits there are for an occurrence to count; 0 where the search fails.
function __corvex__countHits(container, nm) {
  var count = 0;
  try {
    __corvex__searchByProps(container, __corvex__propertyMap(nm), nm, function () {
      ++count;
      return false;
    });
  } catch (e) {
    return 0;
  }
  return count;
}

function __corvex__surveyContainer(container, nm, tagName, survey) {
  var elements = __corvex__withShadowCandidates(__corvex__elementsByTag(container, tagName), container, tagName);
  for (var i = 0; i < elements.length; ++i) {
    __corvex__askMatchers(elements[i], survey);
  }
  if (__corvex__isDocumentNode(container)) {
    __corvex__addClosedFrames(container, survey.frames);
  }
  survey.count += elements.length;
  survey.most = Math.max(survey.most, __corvex__countHits(container, nm));
}

// What fails for another reason leaves nothing to tell of the container.
function __corvex__surveyOne(container, nm, tagName, survey) {
  try {
    __corvex__surveyContainer(container, nm, tagName, survey);
  } catch (e) {
    if (!__corvex__failedReplacement.name) {
      throw e;
    }
  }
}

function __corvex__surveyAsRecord(survey, map) {
  var record = { tag: String(map.tagName.value), count: survey.count, missing: [], frames: survey.frames,
    rivals: __corvex__rivalRecords(survey.rivals, survey.matchers) };
  for (var k = 0; k < survey.matchers.length; ++k) {
    if (!survey.seen[k]) {
      record.missing.push(survey.matchers[k].propName);
      record.error = record.error || survey.errors[k];
    }
  }
  if (__corvex__failedReplacement.name) {
    record.replaced = __corvex__failedReplacement.name;
  }
  if (survey.most && __corvex__matchesToSkip(map) > 0) {
    record.most = survey.most;
  }
  return record;
}

// A record of: context, the name of one that does not exist; or tag, count (elements of that tag below container, in the
// context or in all documents), missing (the properties that none of these has), error (why one of these could not be
// compared), rivals (the elements that come nearest), frames (the addresses of those that nobody can look into), replaced
// (a function that the page put in place of the browser's, where it failed) and, if an occurrence asks for more, most (the
// hits there are to count). undefined for a name that has no list of properties, or a fault.
window.top.__corvex.explainFailedSearch = function (nm, container) {
  var map;
  try {
    map = __corvex__propertyMap(nm);
  } catch (e) {
    return undefined;
  }
  if (!map || !__corvex__mapEntry(map, "tagName")) {
    return undefined;
  }
  var context = __corvex__exactText(__corvex__mapEntry(map, "context"));
  if (context && !__corvex__hasContext(context)) {
    return { context: context };
  }
  var survey = __corvex__newSurvey(map, nm);
  __corvex__failedReplacement.name = "";
  var only = container || (context && __corvex__findContext2(context).document);
  if (only) {
    __corvex__surveyOne(only, nm, map.tagName.value, survey);
  } else {
    __corvex__eachDocument(function (doc) {
      __corvex__surveyContainer(doc, nm, map.tagName.value, survey);
    });
  }
  return __corvex__surveyAsRecord(survey, map);
};
