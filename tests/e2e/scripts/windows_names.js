// Names that lead into other windows, and names of what is there.
startBrowser(SITE + "/windows.html");
["popup.html", "popup.html<2>"].forEach(function (context) {
  clickButton(element("BUTTON", "open"));
  waitForContextExists(context);
  typeText("{tagName='INPUT' name='field' context='" + context + "'}", "in " + context);
});
test.compare(where(), "opener", "a name with a context changes none");
var field = findObject("{tagName='INPUT' name='field' context='popup.html'}");
test.compare(field.value, "in popup.html");
waitForContextExists("popup.html<2>.FRAME1");

[
  "{tagName='INPUT' name='field' context='popup.html<2>'}",
  "{tagName='P' id='where' context='popup.html<2>.FRAME1'}",
  "{tagName='P' id='where' container={tagName='BODY' context='popup.html<2>'}}",
  "DOCUMENT[popup|html<2>].HTML1",
  "DOCUMENT[popup|html<2>|FRAME1]"
].forEach(function (name) {
  setContext("windows.html");
  var object = findObject(name);
  test.verify(objectName(object).indexOf("popup.html<2>") > 0 || objectName(object).indexOf("popup|html<2>") > 0,
    objectName(object));
  test.verify(sameObject(object, findObject(objectName(object))), "and back");
  test.verify(!sameObject(object, field), "in the second window");
});
test.compare(findAllObjects("{tagName='INPUT' context='popup.html<2>'}").length, 1);
verifyFails(function () { findObject("{tagName='EM' context='popup.html<2>'}"); }, "No element in its context has the tag EM.");
verifyFails(function () { findObject("{tagName='P' context='popup.html<3>'}"); }, "There is no context 'popup.html<3>'.");

setContext("windows.html");
var opener = findObject("DOCUMENT");
["popup.html<2>", "popup.html<2>.FRAME1", "windows.html"].forEach(function (context) {
  setContext(context);
  var html = findObject("{tagName='HTML' context='" + context + "'}");
  test.verify(sameObject(html, findObject("DOCUMENT.HTML1")), "the document is that of " + context);
});
test.verify(sameObject(opener, findObject("DOCUMENT")), "objects of documents live on");

findObject("{tagName='BUTTON' id='closeMe'}");
test.compare(where(), "open", "the window of what was found is the current one");
closeWindow();
test.compare(windows().join(" "), "windows.html popup.html");
test.verify(sameObject(opener, findObject("DOCUMENT[windows|html]")), "the others keep their objects");

startBrowser(SITE + "/a,b.html");
test.compare(windows().join(" "), "a,b.html", "a new browser has no windows of the old one");
var left = waitForObject("{tagName='P' id='where' innerText='left'}");
setContext("a,b.html");
test.verify(sameObject(left, findObject(objectName(left))), objectName(left));
