// Gives: __corvex__elementTest, the question whether all matchers accept an element.
// Needs: runtime/state, matching.

// Whether a search asks an extension, which may do what it likes at each question.
function __corvex__extensionsMatch() {
  return window.__corvex__matchObject__hooks.length !== 0 || window.top.__corvex__propertyMatcherFactories.length !== 1;
}

function __corvex__matchedByAll(matchers, element) {
  for (var i = 0; i < matchers.length; ++i) {
    if (!matchers[i].matchObject(element)) {
      return false;
    }
  }
  return true;
}

// The same answers and reports as from __corvex__matchedByAll at less cost, where no extension takes part. An element
// that is refused for what was reported before needs no order of questions: then visibility, which is dear, stands last.
function __corvex__quickElementTest(matchers) {
  var tests = [];
  var isReported = [];
  var dear = -1;
  for (var i = 0; i < matchers.length; ++i) {
    tests.push(__corvex__testOfProperty(matchers[i].propName, matchers[i].propValue, matchers[i].objectName));
    isReported.push(!__corvex__wouldReport(matchers[i].objectName, matchers[i].propName));
    dear = matchers[i].propName === "visible" ? i : dear;
  }

  // The place of the first test but one that refuses the element, or -1.
  function refusal(element, leftOut) {
    for (var k = 0; k < tests.length; ++k) {
      if (k !== leftOut && !tests[k](element)) {
        return k;
      }
    }
    return -1;
  }

  // Whether the element is refused, and for what was reported before. A test that fails may not be reached in order.
  function isSilentlyRefused(element) {
    try {
      var k = refusal(element, dear);
      return k === -1 ? !tests[dear](element) : isReported[k];
    } catch (e) {
      return false;
    }
  }

  return function (element) {
    if (isReported[dear] && isSilentlyRefused(element)) {
      return false;
    }
    var k = refusal(element, -1);
    if (k !== -1 && !isReported[k]) {
      isReported[k] = true;
      __corvex__addUnmatchedProperty(matchers[k].objectName, matchers[k].propName);
    }
    return k === -1;
  };
}

function __corvex__elementTest(matchers) {
  if (!__corvex__extensionsMatch()) {
    return __corvex__quickElementTest(matchers);
  }
  return function (element) {
    return __corvex__matchedByAll(matchers, element);
  };
}
