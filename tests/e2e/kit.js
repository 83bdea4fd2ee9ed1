// What the test scripts share. They find the address of the pages' server in SITE, the browser's name in BROWSER.

/// The sentence with which a call fails; empty when it does not.
function failureOf(call) {
  try {
    call();
  } catch (e) {
    return String(e);
  }
  return "";
}

function verifyFails(call, part) {
  var sentence = failureOf(call);
  test.verify(sentence.indexOf(part) >= 0, "'" + sentence + "' says '" + part + "'");
}

/// Repeats the condition until it holds; a failed call in it counts as not yet.
function waitUntil(condition, what) {
  var end = Date.now() + 10000;
  var sentence;
  do {
    var holds = false;
    sentence = failureOf(function () { holds = condition(); });
    if (holds) {
      test.verify(true, what);
      return;
    }
    pause(0.05);
  } while (Date.now() < end);
  test.verify(false, what + " " + sentence);
}

function element(tag, id) {
  return "{tagName='" + tag + "' id='" + id + "'}";
}

function textOf(tag, id) {
  return findObject(element(tag, id)).innerText;
}

function waitForText(tag, id, text) {
  waitUntil(function () { return textOf(tag, id) === text; }, id + " shows '" + text + "'");
}

function where() {
  return textOf("P", "where");
}
