// Waiting for what is not there yet, and for what is still there.
verifyFails(function () { waitForUrl("*"); }, "No browser is running. Call startBrowser(url) first.");
startBrowser(SITE + "/waiting.html");
verifyFails(function () { waitForObjectGone(element("P", "busy"), 100); }, "was still there after 100 ms, and visible.");
verifyFails(function () { waitForObjectGone("{id='busy'}"); }, "tagName");
verifyFails(function () { waitForValue("{id='busy'}", "value", "x"); }, "tagName");
verifyFails(function () { waitForValue(element("INPUT", "field"), "value", "new", 100); },
  "did not become 'new' within 100 ms; it was last 'old'.");
var field = findObject(element("INPUT", "field"));
clickButton(element("BUTTON", "start"));
waitForObjectGone("{tagName='P' innerText?='busy*'}");
test.verify(!findObject(element("P", "busy")).visible, "an object that is hidden is gone");
test.compare(waitForValue(field, "value", "new"), "new");
waitForValue(element("INPUT", "field"), "css.marginTop", "7px");
test.compare(waitForUrl("*/waiting.html?page=?"), SITE + "/waiting.html?page=2");
test.compare(waitForUrl(/NEXT/i), SITE + "/next.html");
test.compare(waitFor(where), "next", "what fails while the page is not there yet is tried again");
waitForObjectGone(element("INPUT", "field"));
