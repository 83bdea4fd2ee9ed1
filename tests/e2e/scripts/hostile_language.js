// A page that broke the language's own functions and those of its nodes: it is searched and pressed all the same.
startBrowser(SITE + "/broken.html");
clickButton("{tagName='BUTTON' simplifiedInnerText='Ask'}");
waitForObject("{tagName='P' simplifiedInnerText='pressed'}");
setFocus("{visible='true' tagName='INPUT' name?='u*' title='u'}");
test.compare(findObject("{tagName='INPUT' name='user'}").title, "u");
typeText("{tagName='INPUT' name='user'}", "Ada");
test.compare(findObject("{tagName='INPUT' name='user'}").value, "Ada");
test.compare(contextNames().join(" "), "broken.html");
test.compare(exists("{tagName='P' id='answer'}"), true);
test.compare(findAllObjects("{tagName='P'}").length, 1);
verifyFails(function () { findObject("{tagName='INPUT' name='nothing'}"); },
  "not found. 1 element has the tag INPUT, but none has this name.");
verifyFails(function () { findObject("{tagName='EM' id='x'}"); }, "not found. No element has the tag EM.");

// What is said where such a function was the only one to ask.
mouseClick("{tagName='B' id='forge'}");
verifyFails(function () { findObject("{tagName='EM' id='x'}"); }, "not found. No element with the tag EM can be found: " +
  "the page has replaced querySelectorAll by a function that fails.");
