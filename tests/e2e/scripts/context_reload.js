// A context that was selected is selected again when its page was loaded anew.
startBrowser(SITE + "/frames.html");
setContext("frames.html.FRAME2.FRAME1");
test.compare(where(), "inner");
var old = findObject(element("BUTTON", "reload"));
clickButton(old);
waitUntil(function () { return textOf("P", "loads") === "2"; }, "the page is loaded again");
waitUntil(function () { return where() === "inner"; }, "the nested frame is the context again");
verifyFails(function () { old.click(); }, "");
test.verify(failureOf(function () { return old.innerText; }) !== "", "objects of the old page are void");

setContext("frames.html.FRAME1");
startBrowser(SITE + "/frames.html");
test.compare(where(), "top", "a new browser starts in the top document");
